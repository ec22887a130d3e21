#include "flightfeed/send/ProtocolList.h"

#include "flightfeed/send/FlightGearSender.h"
#include "flightfeed/send/GDL90Sender.h"
#include "flightfeed/send/NmeaSender.h"
#include "flightfeed/send/SDatSender.h"
#include "flightfeed/send/XPlaneSender.h"

namespace skyvane {

namespace {

template <class T>
std::unique_ptr<IProtocolSender> make() {
    return std::make_unique<T>();
}

template <GDL90Sender::Maker MAKER>
std::unique_ptr<IProtocolSender> makeGDL90() {
    return std::make_unique<GDL90Sender>(MAKER);
}

const Protocol PROTOCOLS[] = {
    {"flightgear", FlightGearSender::PORT, make<FlightGearSender>},
    {"xplane", XPlaneSender::PORT, make<XPlaneSender>},
    {"sdat", SDatSender::PORT, make<SDatSender>},
    {"nmea", NmeaSender::PORT, make<NmeaSender>, true},
    {"gdl90", GDL90Sender::PORT, makeGDL90<GDL90Sender::Maker::Stratux>},
    {"gdl90-foreflight", GDL90Sender::PORT, makeGDL90<GDL90Sender::Maker::ForeFlight>},
    {"gdl90-levil", GDL90Sender::PORT, makeGDL90<GDL90Sender::Maker::Levil>},
    {"gdl90-talos", GDL90Sender::PORT, makeGDL90<GDL90Sender::Maker::Talos>},
};

} // namespace

const Protocol* findProtocol(const std::string& name) {
    for (const Protocol& protocol : PROTOCOLS)
        if (name == protocol.name)
            return &protocol;
    return nullptr;
}

} // namespace skyvane
