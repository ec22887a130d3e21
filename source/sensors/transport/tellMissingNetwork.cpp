#include "sensors/transport/tellMissingNetwork.h"

#include "core/log/Logger.h"
#include "sensors/transport/queryIPv4BroadcastAdresses.h"

namespace skyvane {

void tellMissingNetwork() {
    if (queryIPv4BroadcastAdresses(0).empty())
        logText("No network is up: join the Wi-Fi of your receiver, or connect a cable, to hear it.\n");
}

} // namespace skyvane
