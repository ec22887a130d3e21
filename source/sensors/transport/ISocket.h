#pragma once

namespace skyvane {

/// A datagram or stream socket of the IP family that rebuilds itself after the system has invalidated it.
///
///     IPv4UDPSocket socket;
///     if (!socket.bind(49000)) return;
///     for (int n; (n = socket.recvWaiting(buffer, sizeof(buffer))) >= 0;) take(buffer, n);
///
/// A call that fails because the socket lost its connection restores it once and is repeated. Other failures are
/// printed, the same one once; nothing raises a signal or an exception. One thread at a time, unless a class says
/// otherwise. Owns the system's handle.
class ISocket {
public:
    ISocket(const ISocket&) = delete;
    ISocket& operator=(const ISocket&) = delete;

    /// Bytes that can be read without waiting (of the next datagram on a datagram socket), 0 on failure.
    virtual int getAvailableBytes() const;
    /// The number of bytes received; 0 when nothing came, the peer went or the datagram is empty; -1 on failure. Bytes
    /// of a datagram beyond the length are lost.
    virtual int recv(char* buffer, unsigned length, bool blocking);
    /// The number of bytes taken, which on a stream may be less than asked; 0 when there is no room now; -1 on failure.
    virtual int send(const char* bytes, unsigned length);
    /// Binds to all addresses of this host; port 0 takes a free one. False when the port is in use or isn't one.
    virtual bool bind(int port) = 0;
    /// Makes the socket anew with the same port and settings. Its result tells whether a later try is worth while.
    virtual bool restore();
    /// -1 when closed. Stays this object's.
    virtual int getSocketHandle() const { return handle_; }
    /// Bytes that the system holds for a slow reader; kept across a restore.
    virtual void setReceiveBufferSize(unsigned bytes);
    /// Takes ownership of the handle and closes the one before.
    virtual void setSocketHandle(int handle);
    virtual ~ISocket();

    /// As recv without blocking, but -1 when nothing waits, so that 0 is an empty datagram, or a stream's end.
    int recvWaiting(char* buffer, unsigned length);

    bool isGood() const { return handle_ >= 0; }

protected:
    ISocket() = default;
    /// One system call with flags; the result and errno are the call's.
    virtual long receiveOnce(char* buffer, unsigned length, int flags);
    virtual long sendOnce(const char* bytes, unsigned length, int flags);
    /// Sets an option of the handle to a number; failure is printed.
    bool setOption(int level, int name, int value);
    void applyReceiveBufferSize();
    void close() { ISocket::setSocketHandle(-1); }
    void allowRestore() { restorable_ = true; }

private:
    template <class Call>
    long withRestore(Call call);
    int resultOf(long count);
    /// Prints a failure unless the one before was the same.
    void tellOnce(int errorNumber);

    int handle_ = -1;
    bool restorable_ = true;     ///< A restore is still worth trying.
    int receiveBufferSize_ = -1; ///< -1 when never set.
    int toldError_ = 0;          ///< The last failure that was printed.
};

/// Prints the system's text for an error number on standard output, after a text of one's own.
void printSocketError(const char* what, int errorNumber);

} // namespace skyvane
