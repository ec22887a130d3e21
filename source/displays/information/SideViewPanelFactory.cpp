#include "displays/information/SideViewPanelFactory.h"

#include "displays/information/InformationOptions.h"
#include "displays/information/SideViewPanel.h"

namespace skyvane {

SideViewPanelFactory::SideViewPanelFactory(Context* context)
    : DialFactory(context, "SideViewPanel", "media/sidePanel.png", sideViewPanelOptions, "SideView.hti") {}

void SideViewPanelFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    settings_ = SideViewSettings::read(*ini, section);
}

std::unique_ptr<IPanel> SideViewPanelFactory::Create() {
    return make<SideViewPanel>(settings_);
}

} // namespace skyvane
