#pragma once

#include "sensors/transport/IComSocket.h"

namespace skyvane {

/// What serial ports and Bluetooth channels share: a handle of the system's that is read and written without waiting.
class HandleComSocket : public IComSocket {
public:
    HandleComSocket(const HandleComSocket&) = delete;
    HandleComSocket& operator=(const HandleComSocket&) = delete;
    ~HandleComSocket() override { HandleComSocket::closeSocket(); }

    bool sendData(char* bytes, int length) override;
    int recvData(char* buffer, int length) override;
    int getAvailableBytes() override;
    void closeSocket() override;

protected:
    HandleComSocket() = default;
    /// Takes ownership and closes the handle before.
    void setHandle(int handle);

private:
    int handle_ = -1; ///< -1 when closed.
};

} // namespace skyvane
