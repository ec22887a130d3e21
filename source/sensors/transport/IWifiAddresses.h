#pragma once

#include <string>

namespace skyvane {

/// What forwarders ask of the device's wireless network.
class IWifiAddresses {
public:
    virtual ~IWifiAddresses() = default;
    /// The address that reaches everybody in the network.
    virtual std::string getIpv4WifiBroadcastAddress() const = 0;
};

} // namespace skyvane
