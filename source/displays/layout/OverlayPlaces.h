#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

/// Where an instrument that lies over everything else stands: at the place it was given, or minimised to its corner,
/// which a tap on it decides for both of them.
///
/// Minimised, the two stand side by side in the lower right corner of the screen.
class OverlayPlaces {
public:
    enum Instrument { Attitude, Compass, Count };

    /// Pixels.
    OverlayPlaces(const irr::core::dimension2d<int>& screen, int buttonHeight);

    void setGiven(Instrument instrument, const irr::core::rect<int>& place) { given_[instrument] = place; }
    void setVisible(Instrument instrument, bool visible) { visible_[instrument] = visible; }
    /// While the manual covers the page both are visible, in its upper right corner.
    void setManualOpen(bool open) { isManualOpen_ = open; }
    bool isVisible(Instrument instrument) const { return visible_[instrument] || isManualOpen_; }
    const irr::core::rect<int>& getPlace(Instrument instrument) const;

    /// What the two cover of the manual; empty while it isn't open.
    irr::core::rect<int> getCoverOfManual() const;

    /// Arms the tap when the point lies on a visible instrument. The press travels on.
    void press(irr::core::vector2d<int> at);
    /// True when it ended a tap, which has moved the instruments to their other places.
    bool release(irr::core::vector2d<int> at);

private:
    /// Count when there is none.
    Instrument instrumentAt(irr::core::vector2d<int> at) const;

    irr::core::rect<int> given_[Count];
    irr::core::rect<int> overManual_[Count];
    irr::core::rect<int> minimised_[Count];
    bool visible_[Count] = {};
    bool isMinimised_ = false;
    bool isManualOpen_ = false;
    Instrument pressed_ = Count;
};

} // namespace skyvane
