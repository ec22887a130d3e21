#include "displays/layout/OverlayPlaces.h"

#include <utility>

namespace skyvane {
namespace {

constexpr double minimisedButtonHeights = 1.75;
constexpr int manualMargin = 15;
const irr::core::rect<int> firstPlace(0, 0, 100, 100);

} // namespace

OverlayPlaces::OverlayPlaces(const irr::core::dimension2d<int>& screen, int buttonHeight)
    : given_{firstPlace, firstPlace} {
    const int edge = static_cast<int>(minimisedButtonHeights * buttonHeight);
    const int width = screen.Width, height = screen.Height;
    const int sixth = width / 6, top = buttonHeight + manualMargin, right = width - manualMargin;
    overManual_[Attitude] = {right - sixth, top, right, top + sixth};
    overManual_[Compass] = {right - width / 3, top, right - sixth, top + sixth};
    minimised_[Attitude] = {width - edge, height - edge, width, height};
    minimised_[Compass] = {width - 2 * edge, height - edge, width - edge, height};
}

const irr::core::rect<int>& OverlayPlaces::getPlace(Instrument instrument) const {
    return isMinimised_ ? minimised_[instrument] : isManualOpen_ ? overManual_[instrument] : given_[instrument];
}

irr::core::rect<int> OverlayPlaces::getCoverOfManual() const {
    irr::core::rect<int> cover;
    if (!isManualOpen_)
        return cover;
    cover = getPlace(Attitude);
    cover.addInternalPoint(getPlace(Compass).UpperLeftCorner);
    cover.addInternalPoint(getPlace(Compass).LowerRightCorner);
    return cover;
}

OverlayPlaces::Instrument OverlayPlaces::instrumentAt(irr::core::vector2d<int> at) const {
    for (const Instrument instrument : {Attitude, Compass}) // the one that is drawn last first
        if (isVisible(instrument) && getPlace(instrument).isPointInside(at))
            return instrument;
    return Count;
}

void OverlayPlaces::press(irr::core::vector2d<int> at) {
    pressed_ = instrumentAt(at);
}

bool OverlayPlaces::release(irr::core::vector2d<int> at) {
    const Instrument pressed = std::exchange(pressed_, Count);
    if (pressed == Count || instrumentAt(at) != pressed)
        return false;
    isMinimised_ = !isMinimised_;
    return true;
}

} // namespace skyvane
