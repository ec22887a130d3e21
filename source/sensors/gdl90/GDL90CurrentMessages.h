#pragma once

#include "sensors/gdl90/messages/FFAHRSMessage.h"
#include "sensors/gdl90/messages/FFIdMessage.h"
#include "sensors/gdl90/messages/LevilAoAMessage.h"
#include "sensors/gdl90/messages/LevilGPSStatus.h"
#include "sensors/gdl90/messages/OwnShipGDL90Message.h"
#include "sensors/gdl90/messages/OwnShipGeoAltGDL90Message.h"
#include "sensors/gdl90/messages/StratuxAHRSMessage.h"
#include "sensors/gdl90/messages/TalosAccMessage.h"
#include "sensors/gdl90/messages/TalosAoAMessage.h"
#include "sensors/gdl90/messages/TalosGPSMessage.h"
#include "sensors/gdl90/messages/TalosGyroMessage.h"
#include "sensors/gdl90/messages/TalosPressureMessage.h"
#include "sensors/gdl90/messages/TalosTemperatureMessage.h"

namespace skyvane {

class GDL90MessageStore;

/// The messages that count at one instant; null for one that never came, that is too old, or that isn't valid.
struct GDL90CurrentMessages {
    GDL90CurrentMessages(const GDL90MessageStore& store, double now);

    const OwnShipGDL90Message* ownShip;
    const OwnShipGeoAltGDL90Message* geoAlt;
    const FFAHRSMessage* ffAhrs;
    const FFIdMessage* ffId;
    const StratuxAHRSMessage* stratux;
    const TalosPressureMessage* talosPressure;
    const TalosTemperatureMessage* talosTemperature; ///< Also one that isn't valid.
    const TalosGPSMessage* talosGps;
    const TalosGyroMessage* talosGyro;
    const TalosAccMessage* talosAcc;
    const TalosAoAMessage* talosAoA;
    const LevilAoAMessage* levilAoA;
    const LevilGPSStatus* levilGps;

    bool hasTalosFix() const { return talosGps && talosGps->hasFix; }
};

} // namespace skyvane
