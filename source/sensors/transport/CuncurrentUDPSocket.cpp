#include "sensors/transport/CuncurrentUDPSocket.h"

#include "core/log/Logger.h"
#include "sensors/transport/DatagramQueue.h"
#include "sensors/transport/IPv4UDPSocket.h"
#include "sensors/transport/IPv6UDPSocket.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace skyvane {

/// What reader and thread share, whatever the IP version. The socket's handle changes only in a restore, which the
/// thread does under the mutex, so that the destructor never shuts down a handle that has become another's.
class CuncurrentUDPSocket::Receiver {
public:
    Receiver(unsigned datagramBufferSize, unsigned queueSize)
        : datagram_(datagramBufferSize), writeQueue_(queueSize), readQueue_(queueSize) {}
    virtual ~Receiver() = default;

    virtual IPSocket& socket() = 0;

    bool start() {
        try {
            thread_ = std::thread([this] { receiveMain(); });
        } catch (const std::system_error&) {
            logText("CuncurrentUDPSocket: no thread could be started.\n");
        }
        return thread_.joinable();
    }

    bool isRunning() const { return thread_.joinable(); }

    void stop() {
        if (!thread_.joinable())
            return;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            exit_ = true;
            ::shutdown(socket().getSocketHandle(), SHUT_RDWR);
        }
        pause_.notify_all();
        thread_.join();
    }

    unsigned next(char*& data) {
        if (const uint32_t length = readQueue_.next(data))
            return length;
        readQueue_.clear();
        {
            std::lock_guard<std::mutex> lock(mutex_);
            std::swap(readQueue_, writeQueue_);
        }
        return readQueue_.next(data);
    }

    /// Runs the restore unless the end has begun.
    template <class Restore>
    bool restoreUnlessStopping(Restore restore) {
        std::lock_guard<std::mutex> lock(mutex_);
        return !exit_ && restore();
    }

private:
    void receiveMain() {
        for (;;) {
            const int length = socket().recv(datagram_.data(), static_cast<unsigned>(datagram_.size()), true);
            std::unique_lock<std::mutex> lock(mutex_);
            if (exit_)
                return;
            if (length > 0)
                writeQueue_.push(datagram_.data(), static_cast<uint32_t>(length));
            else if (length < 0)
                pause_.wait_for(lock, std::chrono::milliseconds(100), [this] { return exit_; });
        }
    }

    std::vector<char> datagram_; ///< The thread's.
    std::mutex mutex_;           ///< Guards writeQueue_, exit_ and the socket's handle. Leaf.
    std::condition_variable pause_;
    bool exit_ = false;
    DatagramQueue writeQueue_;
    DatagramQueue readQueue_; ///< The reader's.
    std::thread thread_;
};

template <class UDPSocket>
class CuncurrentUDPSocket::ReceiverOf : public Receiver {
public:
    using Receiver::Receiver;
    IPSocket& socket() override { return socket_; }

private:
    class GuardedSocket : public UDPSocket {
    public:
        explicit GuardedSocket(Receiver& receiver) : receiver_(receiver) {}
        bool restore() override {
            return receiver_.restoreUnlessStopping([this] { return UDPSocket::restore(); });
        }

    private:
        Receiver& receiver_;
    };

    GuardedSocket socket_{*this};
};

CuncurrentUDPSocket::CuncurrentUDPSocket(unsigned datagramBufferSize, unsigned queueSize, bool ipv4, int port) {
    if (ipv4)
        receiver_ = std::make_unique<ReceiverOf<IPv4UDPSocket>>(datagramBufferSize, queueSize);
    else
        receiver_ = std::make_unique<ReceiverOf<IPv6UDPSocket>>(datagramBufferSize, queueSize);
    IPSocket& socket = receiver_->socket();
    if (!socket.isGood() || (port < 65536 && !socket.bind(port)))
        return;
    boundPort_ = socket.getBoundPort();
    receiver_->start();
}

CuncurrentUDPSocket::~CuncurrentUDPSocket() {
    receiver_->stop();
}

bool CuncurrentUDPSocket::isGood() const {
    return receiver_->isRunning();
}

unsigned CuncurrentUDPSocket::getNextDatagram(char*& data) {
    return receiver_->next(data);
}

} // namespace skyvane
