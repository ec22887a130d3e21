#pragma once

#include "displays/instruments/BatteryPanel.h"
#include "displays/instruments/DialFactory.h"

namespace skyvane {

class BatteryPanelFactory : public DialFactory {
public:
    explicit BatteryPanelFactory(Context* context) : DialFactory(context, "BatteryPanel", "") {}
    std::unique_ptr<IPanel> Create() override { return make<BatteryPanel>(); }
    /// A battery that is three quarters full.
    void renderPreview(irr::core::rect<int> rect) override;

private:
    std::unique_ptr<BatteryView> preview_;
};

} // namespace skyvane
