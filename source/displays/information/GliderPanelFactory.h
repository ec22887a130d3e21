#pragma once

#include "displays/information/GliderPanel.h"
#include "displays/information/InformationOptions.h"
#include "displays/instruments/DialFactory.h"

namespace skyvane {

class GliderPanelFactory : public DialFactory {
public:
    explicit GliderPanelFactory(Context* context)
        : DialFactory(context, "GliderPanel", "media/glider_preview.png", gliderPanelOptions, "Glider.hti") {}
    void loadSetupFromIni(IniFile* ini, std::string section) override;
    std::unique_ptr<IPanel> Create() override { return make<GliderPanel>(style_); }

protected:
    irr::core::rect<int> previewRect(const irr::core::rect<int>& rect) const override { return rect; }

private:
    GliderPanel::Style style_;
};

} // namespace skyvane
