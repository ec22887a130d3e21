#pragma once

#include "core/engine/EngineRef.h"
#include "gui/windows/GUI.h"
#include "sensors/gdl90/GDL90Calibration.h"

#include <memory>

namespace skyvane {

class Context;
class GDL90Sensor;

/// Levels the attitude of a GDL 90 device and tells what its altitude means. What is changed applies at once, so that
/// the horizon in the window shows it; "Cancel" brings back what was before. Main thread only.
class GDL90CalibrationWindow {
public:
    /// Context and sensor outlive the window.
    GDL90CalibrationWindow(Context& context, GDL90Sensor& sensor);
    ~GDL90CalibrationWindow();
    GDL90CalibrationWindow(const GDL90CalibrationWindow&) = delete;
    GDL90CalibrationWindow& operator=(const GDL90CalibrationWindow&) = delete;

    /// Until the pilot has decided; the program goes on meanwhile.
    void run();

private:
    void fillIn();
    void showHorizon();
    void onEvent(const irr::SEvent& event);
    void step(const char* box, double degrees);
    void apply();
    double degreesIn(const char* box, double otherwise) const;
    void openProductPage();

    Context& context_;
    GDL90Sensor& sensor_;
    GDL90Calibration before_;
    EngineRef<irr::gui::IGUIWindow> window_;
    std::unique_ptr<GUI> gui_;
    irr::gui::IGUIElement* formerBackButton_;
    bool isOpen_ = true;
};

} // namespace skyvane
