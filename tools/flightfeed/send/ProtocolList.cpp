#include "flightfeed/send/ProtocolList.h"

#include "flightfeed/send/FlightGearSender.h"
#include "flightfeed/send/XPlaneSender.h"

namespace skyvane {

namespace {

template <class T>
std::unique_ptr<IProtocolSender> make() {
    return std::make_unique<T>();
}

const Protocol PROTOCOLS[] = {
    {"flightgear", FlightGearSender::PORT, make<FlightGearSender>},
    {"xplane", XPlaneSender::PORT, make<XPlaneSender>},
};

} // namespace

const Protocol* findProtocol(const std::string& name) {
    for (const Protocol& protocol : PROTOCOLS)
        if (name == protocol.name)
            return &protocol;
    return nullptr;
}

} // namespace skyvane
