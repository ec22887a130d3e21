#include "gui/sensors/GDL90CalibrationWindow.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "core/text/Numbers.h"
#include "core/text/StrictNumber.h"
#include "core/text/Utf8.h"
#include "displays/PanelManager.h"
#include "gui/skin/Skin.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/WindowTools.h"
#include "sensors/gdl90/GDL90Sensor.h"

#include <algorithm>
#include <cmath>

extern "C" {
extern const char gdl90CalibrationLandscapeLayout[];
extern const char gdl90CalibrationPortraitLayout[];
}

namespace skyvane {
namespace {

constexpr double StepDegrees = 1.0;
constexpr double LargestDegrees = 180.0;
constexpr char ProductPage[] = "https://www.faa.gov/air_traffic/technology/adsb";
constexpr int NoteMilliseconds = 3000;
constexpr wchar_t TalosHint[] = L"Please use the free Talos A-EFIS app for calibration.";

struct Step {
    const char* button;
    const char* box;
    double degrees;
};
constexpr Step Steps[] = {{"brollplus", "eroll", StepDegrees},
                          {"brollminus", "eroll", -StepDegrees},
                          {"bpitchplus", "epitch", StepDegrees},
                          {"bpitchminus", "epitch", -StepDegrees}};

/// What a device that its maker calibrates doesn't offer.
constexpr const char* OwnControls[] = {"troll",      "tpitch",     "eroll",       "epitch", "brollplus",
                                       "brollminus", "bpitchplus", "bpitchminus", "talt",   "calt"};

std::wstring degreesText(double degrees) {
    return decodeUtf8(toFixedText(degrees, 1));
}

} // namespace

GDL90CalibrationWindow::GDL90CalibrationWindow(Context& context, GDL90Sensor& sensor)
    : context_(context), sensor_(sensor), before_(sensor.getCalibration()),
      formerBackButton_(context.getEvents()->getBackButton()) {
    irr::gui::IGUIEnvironment* environment = context.getIrrlichtDevice()->getGUIEnvironment();
    IniFile document =
        readLayout(context.isPortrait() ? gdl90CalibrationPortraitLayout : gdl90CalibrationLandscapeLayout);
    window_ = EngineRef<irr::gui::IGUIWindow>::share(addWindowForRatio(
        environment, &document, environment->getRootGUIElement()->getAbsolutePosition(), true, nullptr, -1));
    gui_ = std::make_unique<GUI>(environment, &document, windowArea(window_.get()), window_.get(), false);
    Skin::setButtonStyle(gui_->getElement("bcancel"), "redNormal");
    Skin::setButtonStyle(gui_->getElement("bok"), "greenNormal");
    context.getEvents()->setBackButton(gui_->getElement("bcancel"));
    fillIn();
    showHorizon();
}

GDL90CalibrationWindow::~GDL90CalibrationWindow() {
    context_.getPanelManager()->setAttitudeIndicatorOverlay(false, nullptr);
    context_.getEvents()->setBackButton(formerBackButton_);
    removeWindow(window_.get());
}

void GDL90CalibrationWindow::fillIn() {
    auto* altitudes = gui_->get<irr::gui::IGUIComboBox>("calt");
    for (const wchar_t* interpretation : {L"Auto", L"MSL", L"WGS84 Ellipsoid"}) // in the order of the numbers
        altitudes->addItem(interpretation);
    altitudes->setSelected(before_.altitude);
    showText(gui_->getElement("eroll"), degreesText(before_.rollOffsetDegrees).c_str());
    showText(gui_->getElement("epitch"), degreesText(before_.pitchOffsetDegrees).c_str());
    if (!sensor_.isCalibratedElsewhere())
        return;
    for (const char* id : OwnControls)
        gui_->getElement(id)->setVisible(false);
    showText(gui_->getElement("thint"), TalosHint);
}

void GDL90CalibrationWindow::showHorizon() {
    const irr::core::rect<int> place =
        gui_->getSpecialRectangle("sattitude") + window_->getAbsolutePosition().UpperLeftCorner;
    context_.getPanelManager()->setAttitudeIndicatorOverlay(true, &place);
}

void GDL90CalibrationWindow::run() {
    ModalLoop loop(*context_.getFrames(), {[this](const irr::SEvent& event) { onEvent(event); }});
    loop.run([this] { return isOpen_; });
}

void GDL90CalibrationWindow::onEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_GUI_EVENT)
        return;
    gui_->Update(event.GUIEvent);
    for (const Step& each : Steps)
        if (isClickOf(event, gui_->getElement(each.button)))
            step(each.box, each.degrees);
    const auto kind = event.GUIEvent.EventType;
    if (kind == irr::gui::EGET_EDITBOX_CHANGED || kind == irr::gui::EGET_COMBO_BOX_CHANGED)
        apply();
    if (isClickOf(event, gui_->getElement("bgetonline")))
        openProductPage();
    if (isClickOf(event, gui_->getElement("bcancel"))) {
        sensor_.setCalibration(before_);
        isOpen_ = false;
    }
    if (isClickOf(event, gui_->getElement("bok")))
        isOpen_ = false;
}

double GDL90CalibrationWindow::degreesIn(const char* box, double otherwise) const {
    double degrees = otherwise;
    const bool isNumber = parseStrictNumber(encodeUtf8(gui_->getElement(box)->getText()), degrees);
    return isNumber && std::abs(degrees) <= LargestDegrees ? degrees : otherwise;
}

void GDL90CalibrationWindow::step(const char* box, double degrees) {
    const double stepped = std::clamp(degreesIn(box, 0.0) + degrees, -LargestDegrees, LargestDegrees);
    showText(gui_->getElement(box), degreesText(stepped).c_str());
    apply();
}

/// A box that holds no number changes nothing yet: somebody is typing in it.
void GDL90CalibrationWindow::apply() {
    GDL90Calibration calibration = sensor_.getCalibration();
    calibration.rollOffsetDegrees = degreesIn("eroll", calibration.rollOffsetDegrees);
    calibration.pitchOffsetDegrees = degreesIn("epitch", calibration.pitchOffsetDegrees);
    calibration.altitude = static_cast<GDL90Calibration::AltitudeInterpretation>(
        std::max(0, gui_->get<irr::gui::IGUIComboBox>("calt")->getSelected()));
    sensor_.setCalibration(calibration);
}

void GDL90CalibrationWindow::openProductPage() {
    context_.setMessage(&context_, "Browser starting", MESSAGE_GREY, NoteMilliseconds);
    context_.gotoURL(ProductPage);
}

} // namespace skyvane
