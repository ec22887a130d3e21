#pragma once

#include "sensors/transport/IWifiAddresses.h"

#include <string>

namespace skyvane {

class Context;

/// The device's wireless network, as far as this platform lets a program at it: it can be asked whether there is a
/// network and whom a broadcast reaches, and the system's own settings can be opened. Main thread only.
class WifiControl : public IWifiAddresses {
public:
    std::string getIpv4WifiBroadcastAddress() const override { return "255.255.255.255"; }
    bool isHotspotSupported() const { return false; }
    bool isHotspotEnabled() const { return false; }
    /// False: no hotspot can be made here.
    bool setWPAHotspot(const std::string& ssid, const std::string& key);
    /// Whether any network but this computer's own is up.
    bool isWifiConnected() const;
    /// Opens the system's network settings.
    void gotoWifiSettings();
    /// The dialog for a user who may lack a network: a hotspot of one's own, an existing one, or neither. What is
    /// entered for the hotspot is kept in data/hotspot.ini.
    void setup(Context* context);

private:
    void createHotspot(Context* context);
};

} // namespace skyvane
