#pragma once

#include "displays/gauges/SegmentType.h"
#include "displays/instruments/OptionSchemas.h"
#include "displays/instruments/SegmentFactory.h"

namespace skyvane {

class OneSegmentPanelFactory : public SegmentFactory {
public:
    explicit OneSegmentPanelFactory(Context* context)
        : SegmentFactory(context, "OneSegmentPanel", oneSegmentPanelOptions, "ValueFields.hti") {}
    void loadSetupFromIni(IniFile* ini, std::string section) override;
    std::unique_ptr<IPanel> Create() override;
    /// A field with its label and figures that nobody takes for a value.
    void renderPreview(irr::core::rect<int> rect) override;

private:
    SegmentType type_ = SegmentType::HEADING;
};

} // namespace skyvane
