#pragma once

#include "displays/informationmath/SideViewSettings.h"
#include "displays/instruments/DialFactory.h"

namespace skyvane {

class SideViewPanelFactory : public DialFactory {
public:
    explicit SideViewPanelFactory(Context* context);

    void loadSetupFromIni(IniFile* ini, std::string section) override;
    std::unique_ptr<IPanel> Create() override;

protected:
    irr::core::rect<int> previewRect(const irr::core::rect<int>& rect) const override { return rect; }

private:
    SideViewSettings settings_;
};

} // namespace skyvane
