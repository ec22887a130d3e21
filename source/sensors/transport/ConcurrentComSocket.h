#pragma once

#include "sensors/transport/IComSocket.h"

#include <memory>

namespace skyvane {

/// Keeps the blocking connect of a socket away from its user: a thread connects, and the user asks in every frame.
///
///     ConcurrentComSocket socket(std::make_unique<RFCommSocket>());
///     if (socket.tryConnectSocket("00:11:22:33:44:55") == ConcurrentComSocket::ConnectDone) ... // once, then read
///
/// One user thread. The destructor doesn't wait: a connect that hangs ends later, and takes the wrapped socket with it.
class ConcurrentComSocket : public IComSocket {
public:
    enum State { Disconnected = 0, Connected = 1, ConnectDone = 2, Connecting = 3 };

    explicit ConcurrentComSocket(std::unique_ptr<IComSocket> socket);
    ~ConcurrentComSocket() override;
    ConcurrentComSocket(const ConcurrentComSocket&) = delete;
    ConcurrentComSocket& operator=(const ConcurrentComSocket&) = delete;

    /// Begins to connect and gives Connecting, also while an earlier call's target is being connected. Gives
    /// ConnectDone once when that went through, and the socket is Connected from then on.
    int tryConnectSocket(const std::string& target);
    int getCurrentState();

    /// Blocks until the connect went through or failed.
    bool connectSocket(const std::string& target) override;
    /// These three work in the state Connected only.
    bool sendData(char* bytes, int length) override;
    int recvData(char* buffer, int length) override;
    int getAvailableBytes() override;
    void closeSocket() override;

private:
    struct Shared;
    static void SocketMain(std::shared_ptr<Shared> shared);

    std::shared_ptr<Shared> shared_; ///< With the thread, which may outlive this object.
};

} // namespace skyvane
