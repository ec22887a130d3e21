#pragma once

#include "displays/gauges/SegmentType.h"
#include "displays/instruments/DialFactory.h"
#include "displays/instruments/OptionSchemas.h"
#include "displays/instruments/SegmentBackground.h"

#include <irrlicht.h>

namespace skyvane {

class OneSegmentPanelFactory : public DialFactory {
public:
    explicit OneSegmentPanelFactory(Context* context)
        : DialFactory(context, "OneSegmentPanel", "", oneSegmentPanelOptions, "ValueFields.hti") {}
    void loadSetupFromIni(IniFile* ini, std::string section) override;
    std::unique_ptr<IPanel> Create() override;
    /// A field with its label and figures that nobody takes for a value.
    void renderPreview(irr::core::rect<int> rect) override;

private:
    SegmentType type_ = SegmentType::HEADING;
    irr::video::SColor color_{0xff000080};
    std::unique_ptr<SegmentBackground> previewGround_;
};

} // namespace skyvane
