#pragma once

#include "displays/instruments/DialFactory.h"
#include "displays/instruments/SegmentBackground.h"

#include <irrlicht.h>

namespace skyvane {

class FlexibleFont;

/// What the factories of panels on the ground of a value field have in common: its colour, and the ground of their
/// previews.
class SegmentFactory : public DialFactory {
public:
    void loadSetupFromIni(IniFile* ini, std::string section) override;

protected:
    SegmentFactory(Context* context, const char* name, const char* options, const char* helpPage = nullptr)
        : DialFactory(context, name, "", options, helpPage) {}

    irr::video::SColor getColor() const { return color_; }
    /// The font for what shall stand on the ground; null, and no ground, where either is missing.
    FlexibleFont* drawPreviewGround(const irr::core::rect<int>& rect);

private:
    irr::video::SColor color_{0xff000080};
    std::unique_ptr<SegmentBackground> ground_; ///< Made when first asked for.
};

} // namespace skyvane
