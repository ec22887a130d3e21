#pragma once

#include "displays/layout/OverlayPlaces.h"

#include <irrlicht.h>
#include <memory>

namespace skyvane {

class AttitudeIndicator;
class Compass;
class Context;

/// An attitude indicator and a compass over everything else, for whoever covers the instruments of the page for a
/// while. They are flown by, so they read and fail as any panel does. Main thread only.
class OverlayInstruments {
public:
    /// Hidden. The context outlives the instruments.
    explicit OverlayInstruments(Context* context);
    ~OverlayInstruments();
    OverlayInstruments(const OverlayInstruments&) = delete;
    OverlayInstruments& operator=(const OverlayInstruments&) = delete;

    /// Null as place keeps the one that was given before.
    void show(OverlayPlaces::Instrument instrument, bool visible, const irr::core::rect<int>* place);
    void setManualOpen(bool open) { places_.setManualOpen(open); }
    irr::core::rect<int> getCoverOfManual() const { return places_.getCoverOfManual(); }
    void render();
    /// True when the event ended a tap on an instrument, which makes them small or large.
    bool processMouse(const irr::SEvent::SMouseInput& mouse);

private:
    std::unique_ptr<AttitudeIndicator> attitude_;
    std::unique_ptr<Compass> compass_;
    OverlayPlaces places_;
};

} // namespace skyvane
