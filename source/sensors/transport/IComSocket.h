#pragma once

#include <string>

namespace skyvane {

/// A stream of bytes to a device: a serial port or a Bluetooth channel. Nothing but connectSocket blocks.
class IComSocket {
public:
    /// Closes what was open. Each kind has its own form of target.
    virtual bool connectSocket(const std::string& target) = 0;
    /// True when all bytes were taken.
    virtual bool sendData(char* bytes, int length) = 0;
    /// The number of bytes read, of those that wait.
    virtual int recvData(char* buffer, int length) = 0;
    /// 0 as well when the device has gone.
    virtual int getAvailableBytes() = 0;
    virtual void closeSocket() = 0;
    virtual void* getPlatformDependentInformation() { return nullptr; }
    virtual void setMTSendRecvInformation(void*) {}
    virtual ~IComSocket() = default;
};

} // namespace skyvane
