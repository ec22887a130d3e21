#include "sensors/gdl90/GDL90CurrentMessages.h"

#include "sensors/gdl90/GDL90MessageStore.h"

namespace skyvane {
namespace {

class Finder {
public:
    Finder(const GDL90MessageStore& store, double now) : store_(store), now_(now) {}

    template <class T>
    const T* find(IGDL90Message::Type type) const {
        return static_cast<const T*>(store_.getMsgIfValid(type, now_));
    }
    template <class T>
    const T* findValid(IGDL90Message::Type type) const {
        const T* message = find<T>(type);
        return message && message->valid ? message : nullptr;
    }

private:
    const GDL90MessageStore& store_;
    double now_;
};

} // namespace

GDL90CurrentMessages::GDL90CurrentMessages(const GDL90MessageStore& store, double now) {
    const Finder all(store, now);
    ownShip = all.find<OwnShipGDL90Message>(IGDL90Message::OWNSHIP);
    geoAlt = all.find<OwnShipGeoAltGDL90Message>(IGDL90Message::OWNSHIP_GEO_ALT);
    ffAhrs = all.find<FFAHRSMessage>(IGDL90Message::FFAHRS);
    ffId = all.find<FFIdMessage>(IGDL90Message::FFID);
    stratux = all.find<StratuxAHRSMessage>(IGDL90Message::STRATUX_AHRS);
    talosPressure = all.findValid<TalosPressureMessage>(IGDL90Message::TALOS_PRESSURE);
    talosTemperature = all.find<TalosTemperatureMessage>(IGDL90Message::TALOS_TEMPERATURE);
    talosGps = all.findValid<TalosGPSMessage>(IGDL90Message::TALOS_GPS);
    talosGyro = all.findValid<TalosGyroMessage>(IGDL90Message::TALOS_GYRO);
    talosAcc = all.findValid<TalosAccMessage>(IGDL90Message::TALOS_ACC);
    talosAoA = all.findValid<TalosAoAMessage>(IGDL90Message::TALOS_AOA);
    levilAoA = all.find<LevilAoAMessage>(IGDL90Message::LEVIL_AOA);
    levilGps = all.find<LevilGPSStatus>(IGDL90Message::LEVIL_GPS_STATUS);
}

} // namespace skyvane
