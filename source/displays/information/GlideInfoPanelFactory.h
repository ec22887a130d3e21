#pragma once

#include "displays/information/InformationOptions.h"
#include "displays/instruments/DialFactory.h"
#include "displays/instruments/SegmentBackground.h"

namespace skyvane {

class GlideInfoPanelFactory : public DialFactory {
public:
    explicit GlideInfoPanelFactory(Context* context)
        : DialFactory(context, "GlideInfoPanel", "", glideInfoPanelOptions, "GlideInfo.hti") {}
    void loadSetupFromIni(IniFile* ini, std::string section) override;
    std::unique_ptr<IPanel> Create() override;
    /// The panel with its labels and figures that nobody takes for values.
    void renderPreview(irr::core::rect<int> rect) override;

private:
    irr::video::SColor color_{0xff000080};
    std::unique_ptr<SegmentBackground> previewGround_;
};

} // namespace skyvane
