#pragma once

#include "gui/menu/MenuWindow.h"

namespace skyvane {

class SensorManager;

/// Sets the altimeter: the sea-level pressure that is used where none is calculated, in steps of millibars and of
/// inches of mercury, whether it is used at all, and whether the altitude of the satellites is shown instead. What
/// results stands below. Main thread only.
class AltimeterWindow : public MenuWindow {
public:
    explicit AltimeterWindow(Context* context);

    void update() override;

protected:
    void onEvent(const irr::SEvent& event) override;

private:
    void updateFallbackIndication(double deltaMillibars);
    void updateResultingAltimeterSetting();

    SensorManager* sensors_;
    unsigned lastUpdateMilliseconds_;
};

} // namespace skyvane
