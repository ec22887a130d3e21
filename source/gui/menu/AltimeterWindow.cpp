#include "gui/menu/AltimeterWindow.h"

#include "core/Context.h"
#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "gui/menu/MenuLayouts.h"
#include "gui/windows/WindowTools.h"
#include "sensors/SensorManager.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr double inchesPerMillibar = 0.02953;
/// No weather on record reaches these.
constexpr double lowestMillibars = 850.0, highestMillibars = 1100.0;
constexpr unsigned updateMilliseconds = 500;

struct Step {
    const char* button;
    double millibars;
};

constexpr Step steps[] = {
    {"bmuchless", -10.0},       {"bless", -1.0},         {"bmore", 1.0},         {"bmuchmore", 10.0},
    {"bmuchlessHg", -3.386389}, {"blessHg", -0.3386389}, {"bmoreHg", 0.3386389}, {"bmuchmoreHg", 3.386389}};

std::string millibarsText(double millibars) {
    return toFixedText(millibars, 2) + " mbars";
}

std::string inchesText(double millibars) {
    return toFixedText(millibars * inchesPerMillibar, 2) + " Hg";
}

irr::gui::IGUICheckBox* checkBox(irr::gui::IGUIElement* element) {
    return static_cast<irr::gui::IGUICheckBox*>(element);
}

} // namespace

AltimeterWindow::AltimeterWindow(Context* context)
    : MenuWindow(context, altimeterLandscapeLayout, altimeterPortraitLayout), sensors_(context->getSensorManager()),
      lastUpdateMilliseconds_(MilliSecs()) {
    checkBox(element("cautoQnh"))->setChecked(!sensors_->getForceAltimeterFallback());
    checkBox(element("cuseGNSS"))->setChecked(sensors_->getForceGNSSAltitude());
    updateFallbackIndication(0.0);
}

void AltimeterWindow::update() {
    const unsigned now = MilliSecs();
    if (now - lastUpdateMilliseconds_ < updateMilliseconds)
        return;
    lastUpdateMilliseconds_ = now;
    updateResultingAltimeterSetting();
}

void AltimeterWindow::onEvent(const irr::SEvent& event) {
    for (const Step& step : steps)
        if (isClickOf(event, element(step.button)))
            return updateFallbackIndication(step.millibars);
    if (event.GUIEvent.EventType != irr::gui::EGET_CHECKBOX_CHANGED)
        return;
    sensors_->setForceAltimeterFallback(!checkBox(element("cautoQnh"))->isChecked());
    sensors_->setForceGNSSAltitude(checkBox(element("cuseGNSS"))->isChecked());
    updateResultingAltimeterSetting();
}

void AltimeterWindow::updateFallbackIndication(double deltaMillibars) {
    const double value =
        std::clamp(sensors_->getFallbackSeaLevelPressure() + deltaMillibars, lowestMillibars, highestMillibars);
    sensors_->setFallbackSeaLevelPressure(value);
    showText(element("tfallbackValue"), decodeUtf8(millibarsText(value)).c_str());
    showText(element("tfallbackValueHg"), decodeUtf8(inchesText(value)).c_str());
    updateResultingAltimeterSetting();
}

/// Without a pressure sensor there is nothing that the pressure could set.
void AltimeterWindow::updateResultingAltimeterSetting() {
    const double value = sensors_->getSeaLevelPressure();
    const std::string text = "=> resulting QNH/Altimeter setting: " + millibarsText(value) + ", " + inchesText(value);
    showText(element("tresult"), decodeUtf8(text).c_str());
    const bool hasSensor = sensors_->getMostSuitablePressureData() != nullptr;
    for (const Step& step : steps)
        element(step.button)->setVisible(hasSensor);
    element("tnoSensor")->setVisible(!hasSensor);
}

} // namespace skyvane
