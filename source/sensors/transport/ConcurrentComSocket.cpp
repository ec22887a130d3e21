#include "sensors/transport/ConcurrentComSocket.h"

#include "core/log/Logger.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace skyvane {

struct ConcurrentComSocket::Shared {
    explicit Shared(std::unique_ptr<IComSocket> wrapped) : socket(std::move(wrapped)) {}

    bool isConnected() {
        const std::lock_guard<std::mutex> lock(stateMutex);
        return state == Connected;
    }
    void close() {
        const std::lock_guard<std::mutex> lock(dataMutex);
        socket->closeSocket();
    }

    std::mutex stateMutex; ///< Guards state, target and the two requests; held briefly, never with dataMutex.
    std::condition_variable changed;
    int state = Disconnected;
    std::string target;
    bool closeRequested = false;
    bool exitRequested = false;
    std::mutex dataMutex; ///< Guards the socket, but for the connect: nobody else uses it then.
    std::unique_ptr<IComSocket> socket;
};

ConcurrentComSocket::ConcurrentComSocket(std::unique_ptr<IComSocket> socket)
    : shared_(std::make_shared<Shared>(std::move(socket))) {
    try {
        std::thread(SocketMain, shared_).detach();
    } catch (const std::system_error&) {
        logText("ConcurrentComSocket: no thread could be started.\n");
    }
}

ConcurrentComSocket::~ConcurrentComSocket() {
    const std::lock_guard<std::mutex> lock(shared_->stateMutex);
    shared_->exitRequested = true;
    shared_->changed.notify_all();
}

void ConcurrentComSocket::SocketMain(std::shared_ptr<Shared> shared) {
    std::unique_lock<std::mutex> lock(shared->stateMutex);
    for (;;) {
        shared->changed.wait(
            lock, [&] { return shared->exitRequested || shared->closeRequested || shared->state == Connecting; });
        if (shared->exitRequested)
            return;
        shared->closeRequested = false;
        const bool connecting = shared->state == Connecting;
        const std::string target = shared->target;
        lock.unlock();
        shared->close();
        const bool connected = connecting && shared->socket->connectSocket(target);
        lock.lock();
        if (connecting)
            shared->state = connected && !shared->closeRequested ? ConnectDone : Disconnected;
        shared->changed.notify_all();
    }
}

int ConcurrentComSocket::tryConnectSocket(const std::string& target) {
    const std::lock_guard<std::mutex> lock(shared_->stateMutex);
    if (shared_->state == ConnectDone) {
        shared_->state = Connected;
        return ConnectDone;
    }
    if (shared_->state != Connecting) {
        shared_->target = target;
        shared_->state = Connecting;
        shared_->changed.notify_all();
    }
    return Connecting;
}

int ConcurrentComSocket::getCurrentState() {
    const std::lock_guard<std::mutex> lock(shared_->stateMutex);
    return shared_->state;
}

bool ConcurrentComSocket::connectSocket(const std::string& target) {
    tryConnectSocket(target);
    std::unique_lock<std::mutex> lock(shared_->stateMutex);
    shared_->changed.wait(lock, [this] { return shared_->state != Connecting; });
    if (shared_->state == ConnectDone)
        shared_->state = Connected;
    return shared_->state == Connected;
}

bool ConcurrentComSocket::sendData(char* bytes, int length) {
    if (!shared_->isConnected())
        return false;
    const std::lock_guard<std::mutex> lock(shared_->dataMutex);
    return shared_->socket->sendData(bytes, length);
}

int ConcurrentComSocket::recvData(char* buffer, int length) {
    if (!shared_->isConnected())
        return 0;
    const std::lock_guard<std::mutex> lock(shared_->dataMutex);
    return shared_->socket->recvData(buffer, length);
}

int ConcurrentComSocket::getAvailableBytes() {
    if (!shared_->isConnected())
        return 0;
    const std::lock_guard<std::mutex> lock(shared_->dataMutex);
    return shared_->socket->getAvailableBytes();
}

void ConcurrentComSocket::closeSocket() {
    const std::lock_guard<std::mutex> lock(shared_->stateMutex);
    shared_->closeRequested = true;
    if (shared_->state != Connecting)
        shared_->state = Disconnected;
    shared_->changed.notify_all();
}

} // namespace skyvane
