#include "displays/panels/OverlayInstruments.h"

#include "core/Context.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/instruments/AttitudeIndicator.h"
#include "displays/instruments/Compass.h"

namespace skyvane {
namespace {

constexpr auto outlineColor = static_cast<irr::gui::EGUI_DEFAULT_COLOR>(8);
constexpr auto fillColor = static_cast<irr::gui::EGUI_DEFAULT_COLOR>(3);

OverlayPlaces placesOf(const ScreenMetrics& metrics) {
    return {{static_cast<int>(metrics.width), static_cast<int>(metrics.height)}, metrics.buttonHeight};
}

} // namespace

OverlayInstruments::OverlayInstruments(Context* context)
    : attitude_(std::make_unique<AttitudeIndicator>(context)), compass_(std::make_unique<Compass>(context)),
      places_(placesOf(context->getScreenMetrics())) {
    const irr::gui::IGUISkin* skin = context->getIrrlichtDevice()->getGUIEnvironment()->getSkin();
    const irr::video::SColor outline = skin->getColor(outlineColor);
    attitude_->setStyle(skin->getColor(fillColor), &outline);
    compass_->setStyle(skin->getColor(fillColor), &outline);
}

OverlayInstruments::~OverlayInstruments() = default;

void OverlayInstruments::show(OverlayPlaces::Instrument instrument, bool visible, const irr::core::rect<int>* place) {
    places_.setVisible(instrument, visible);
    if (place)
        places_.setGiven(instrument, *place);
}

void OverlayInstruments::render() {
    if (places_.isVisible(OverlayPlaces::Compass))
        compass_->render(places_.getPlace(OverlayPlaces::Compass));
    if (places_.isVisible(OverlayPlaces::Attitude))
        attitude_->render(places_.getPlace(OverlayPlaces::Attitude));
}

bool OverlayInstruments::processMouse(const irr::SEvent::SMouseInput& mouse) {
    const irr::core::vector2d<int> at(mouse.X, mouse.Y);
    if (mouse.Event == irr::EMIE_LMOUSE_PRESSED_DOWN)
        places_.press(at);
    return mouse.Event == irr::EMIE_LMOUSE_LEFT_UP && places_.release(at);
}

} // namespace skyvane
