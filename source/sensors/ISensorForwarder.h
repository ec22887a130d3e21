#pragma once

#include "sensors/records/ISensorData.h"

#include <memory>
#include <string>

namespace skyvane {

class IniFile;
class ISensor;

/// A record of this type holds what came in this frame alone: it is passed on at once, whatever the period, as the next
/// frame doesn't have it any more.
inline bool isForOneFrame(ISensorData::Type type) {
    return type == ISensorData::UATUplink;
}

/// Passes on what a sensor updated: to a log, to the network.
class ISensorForwarder {
public:
    virtual void forward(ISensor* sensor) = 0;
    virtual void setForwardPeriod(int milliseconds) = 0;
    virtual std::string getName() = 0;
    virtual void setPause(bool paused) = 0;
    virtual ~ISensorForwarder() = default;
};

/// Makes forwarders of one kind. Its place in the list is a stored format.
class ISensorForwarderFactory {
public:
    virtual bool setup() = 0;
    /// False when this kind isn't restored from the configuration.
    virtual bool loadSetupFromIni(IniFile*, std::string) { return false; }
    virtual void saveSetupToIni(IniFile*, std::string) {}
    virtual std::unique_ptr<ISensorForwarder> Create() = 0;
    virtual std::string getName() = 0;
    virtual ~ISensorForwarderFactory() = default;
};

} // namespace skyvane
