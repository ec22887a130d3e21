#pragma once

#include <memory>

namespace skyvane {

/// Receives datagrams on a thread of its own, so that the reader neither waits nor copies nor allocates.
///
///     CuncurrentUDPSocket socket(65536, 1048576, true, 4000);
///     char* data;
///     while (unsigned n = socket.getNextDatagram(data)) parse(data, n);   // once a frame
///
/// One thread fills a queue while one reader empties the other; they are exchanged when the reader has used its own up.
/// Datagrams that find the queue full are lost, empty ones are skipped.
class CuncurrentUDPSocket {
public:
    /// Datagrams longer than the buffer are cut. An entry takes 4 bytes beyond its datagram and must be smaller than
    /// the queue's free space. A port of 65536 or more means unbound.
    CuncurrentUDPSocket(unsigned datagramBufferSize, unsigned queueSize, bool ipv4, int port);
    /// Wakes the thread and lets it go; the port is free on return.
    ~CuncurrentUDPSocket();
    CuncurrentUDPSocket(const CuncurrentUDPSocket&) = delete;
    CuncurrentUDPSocket& operator=(const CuncurrentUDPSocket&) = delete;

    /// False when there is no socket, the port is taken or the thread couldn't start; then no datagram ever comes.
    bool isGood() const;
    /// The length of the next datagram and a pointer to it, or 0. The bytes stay until the call that exchanges the
    /// queues, the one after the last datagram. Always from the same thread.
    unsigned getNextDatagram(char*& data);
    /// The port that the system gave, -1 when unbound.
    int getBoundPort() const { return boundPort_; }

private:
    class Receiver;
    template <class UDPSocket>
    class ReceiverOf;

    std::unique_ptr<Receiver> receiver_;
    int boundPort_ = -1;
};

} // namespace skyvane
