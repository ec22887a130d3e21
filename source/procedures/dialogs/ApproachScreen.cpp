#include "procedures/dialogs/ApproachScreen.h"

#include "chart/elements/AirportElement.h"
#include "core/Context.h"
#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "gui/windows/NumberEditBox.h"
#include "gui/windows/WindowTools.h"
#include "procedures/approach/TrafficPatternApproach.h"
#include "procedures/dialogs/ProcedureDocuments.h"
#include "procedures/framework/FlightReadings.h"
#include "procedures/preview/PathFigures.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr NumberEditBox::Range FinalMiles{0.0, 50.0, 1.0, 10.0};
constexpr NumberEditBox::Range AltitudeFeet{-2000.0, 30000.0, 100.0, 5000.0};
constexpr int RunwayWidth = 6;
/// Of a final that most aircraft fly without haste.
constexpr double FlattestDegrees = 1.5, SteepestDegrees = 6.5;
const irr::video::SColor runwayColor(0xfff2f5f9);

bool isChangeOf(const irr::SEvent& event, const irr::gui::IGUIElement* box) {
    return event.GUIEvent.EventType == NumberEditBox::NumberChanged && event.GUIEvent.Caller == box;
}

} // namespace

ApproachScreen::ApproachScreen(Context& context, ApproachProcedureFactory& factory, const AirportElement& airport)
    : CourseScreen(context, {approachLandscapeLayout, approachPortraitLayout, "ApproachProcedure.hti"},
                   factory.getGeneralValues()),
      factory_(factory) {
    const AppRunway& runway = factory.getRunway();
    landing_ = describeLandingRunway(airport, runway.runwayIndex, runway.primary).value_or(LandingRunway());
    showText(element("ttitle"),
             decodeUtf8("RWY " + landing_.label + "  " + airport.getIndicatedLabel(true, false)).c_str());
    auto* profiles = gui().get<irr::gui::IGUIListBox>("lprofiles");
    for (const auto& profile : factory.getProfiles())
        profiles->addItem(profile->getLabel().c_str());
    profiles->setSelected(static_cast<int>(factory.getSelectedProfile()));
    addNumberBoxes();
    colorText(element("twarning"), WarningColor);
    refresh();
}

void ApproachScreen::addNumberBoxes() {
    irr::gui::IGUIEnvironment* environment = context_.getIrrlichtDevice()->getGUIEnvironment();
    const auto add = [&](const char* place, double value, const NumberEditBox::Range& range) {
        auto* box = new NumberEditBox(environment, window(), -1, gui().getSpecialRectangle(place), value, range);
        box->drop(); // the window holds it
        return box;
    };
    final_ = add("sfinal", factory_.getValues().getFinalLength(), FinalMiles);
    altitude_ = add("saltitude", factory_.getValues().getFafAltitude(), AltitudeFeet);
}

void ApproachScreen::showWarnings(const IProcedure* made) {
    const auto* circuit = dynamic_cast<const TrafficPatternApproach*>(made);
    std::string text;
    for (const std::string& warning :
         {circuit ? circuit->climbWarning() : "", thresholdWarning(landing_), accuracyWarning(landing_)})
        text += (text.empty() || warning.empty() ? "" : "\n") + warning;
    showText(element("twarning"), decodeUtf8(text).c_str());
}

bool ApproachScreen::onEntry(const irr::SEvent& event) {
    auto* profiles = gui().get<irr::gui::IGUIListBox>("lprofiles");
    if (isEntry(event) && event.GUIEvent.Caller == profiles && profiles->getSelected() >= 0)
        factory_.selectProfile(static_cast<size_t>(profiles->getSelected()));
    else if (isChangeOf(event, final_))
        factory_.getValues().setFinalLength(roundHalfAway(final_->getValue()));
    else if (isChangeOf(event, altitude_))
        factory_.getValues().setFafAltitude(roundHalfAway(altitude_->getValue()));
    else
        return false;
    return true;
}

void ApproachScreen::refresh() {
    const ApproachValues& values = factory_.getValues();
    final_->setValue(values.getFinalLength());
    altitude_->setValue(values.getFafAltitude());
    const int rate = values.getDescentRate(), knots = factory_.getGeneralValues().approximateGroundSpeed;
    showText(element("tdescentrate"), decodeUtf8("=> Descent Rate: " + toText(rate) + " ft/NM").c_str());
    const double degrees = glideAngleDegrees(rate);
    const std::string angle = toFixedText(degrees, 1) + "°, " +
                              toText(roundHalfAway(descentFeetPerMinute(rate, knots) / 10.0) * 10) + " ft/min at " +
                              toText(knots) + " kts";
    showText(element("tangle"), decodeUtf8(angle).c_str());
    colorText(element("tangle"), degrees < FlattestDegrees || degrees > SteepestDegrees ? WarningColor : PlainColor);
    showPath();
}

/// The path itself, as it would be flown from here; from the fix where nobody knows where the aircraft is.
void ApproachScreen::showPath() {
    CoursePreview::Scene scene;
    const std::unique_ptr<IProcedure> made = factory_.Create();
    showWarnings(made.get());
    if (!made)
        return preview().show({});
    const auto& approach = static_cast<const IApproach&>(*made);
    const FlightReadings readings = readFlight(*context_.getSensorManager());
    if (readings.isPlaced())
        made->calculateCourseList(*readings.position, *readings.altitude, readings.heading.value_or(0.0));
    else
        made->calculateCourseList(approach.getFafPosition(), approach.getFafAltitude(), factory_.getRunway().course);
    scene.course = made->getCourseList();
    scene.fixes = {approach.getFafPosition()};
    scene.guides = {{landing_.threshold, landing_.farThreshold, RunwayWidth, runwayColor, true}};
    scene.seen = {landing_.threshold, landing_.farThreshold};
    preview().show(std::move(scene));
}

} // namespace skyvane
