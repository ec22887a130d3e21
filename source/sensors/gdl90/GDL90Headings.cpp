#include "sensors/gdl90/GDL90Headings.h"

#include "chart/geodesy/Angles.h"
#include "sensors/gdl90/GDL90CurrentMessages.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double LargestDegrees = 360.0;

} // namespace

/// What no compass says isn't taken.
void GDL90Headings::Store::set(double newDegrees) {
    if (!(std::abs(newDegrees) <= LargestDegrees))
        return;
    degrees = static_cast<float>(Angle0to360(newDegrees));
    isLive = true;
}

float GDL90Headings::Store::live() const {
    return isLive ? degrees : std::numeric_limits<float>::quiet_NaN();
}

void GDL90Headings::take(const GDL90CurrentMessages& messages, GDL90Flavor flavor) {
    for (Store* store : {&track_, &true_, &magnetic_})
        store->isLive = false;
    if (messages.hasTalosFix())
        track_.set(messages.talosGps->groundtrack);
    if (messages.stratux && messages.stratux->heading)
        true_.set(*messages.stratux->heading);
    if (messages.ffAhrs && messages.ffAhrs->heading) {
        if (!messages.ffAhrs->isTrueHeading)
            magnetic_.set(*messages.ffAhrs->heading);
        else if (!messages.hasTalosFix())
            true_.set(*messages.ffAhrs->heading);
    }
    if (messages.ownShip && flavor != GDL90Flavor::Talos)
        takeOwnShip(*messages.ownShip, messages);
}

/// The maker's extensions know better.
void GDL90Headings::takeOwnShip(const OwnShipGDL90Message& ownShip, const GDL90CurrentMessages& messages) {
    const bool hasStratux = messages.stratux && messages.stratux->heading;
    const bool hasFF = messages.ffAhrs && messages.ffAhrs->heading;
    const bool isFFTrue = hasFF && messages.ffAhrs->isTrueHeading;
    if (ownShip.miscId == OwnShipGDL90Message::TrueTrack && !hasStratux)
        track_.set(ownShip.track);
    if (ownShip.miscId == OwnShipGDL90Message::TrueHeading && !messages.hasTalosFix() && !isFFTrue)
        true_.set(ownShip.track);
    if (ownShip.miscId == OwnShipGDL90Message::MagneticHeading && !(hasFF && !isFFTrue))
        magnetic_.set(ownShip.track);
}

GDL90Headings::Choice GDL90Headings::choose() const {
    const struct {
        const Store& store;
        Kind kind;
    } candidates[] = {{track_, Track}, {true_, True}, {magnetic_, Magnetic}};
    for (const bool isLive : {true, false})
        for (const auto& candidate : candidates)
            if (candidate.store.isLive == isLive && !std::isnan(candidate.store.degrees))
                return {candidate.store.degrees, candidate.kind, isLive};
    return {};
}

} // namespace skyvane
