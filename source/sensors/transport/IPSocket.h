#pragma once

#include "sensors/transport/ISocket.h"

namespace skyvane {

/// What the sockets of both IP versions share: making, binding and rebuilding.
class IPSocket : public ISocket {
public:
    bool bind(int port) override;
    /// The port that the system gave, -1 when unbound.
    int getBoundPort() const { return boundPort_; }
    /// Sets the socket up anew and binds it to its port again.
    bool restore() override;

protected:
    /// The version is 4 or 6, the type a SOCK_ constant. Makes no handle yet: the leaf class calls open().
    IPSocket(int version, int type) : version_(version), type_(type) {}
    /// Closes what is open and makes a new handle with all settings; false when the system refuses.
    bool open();
    /// Puts a leaf's settings on a handle just made.
    virtual void applyOptions() {}
    int version() const { return version_; }

private:
    bool bindHandle(int port);

    int version_;
    int type_;
    int boundPort_ = -1;
};

} // namespace skyvane
