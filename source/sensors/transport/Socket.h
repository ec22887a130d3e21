#pragma once

#include "sensors/transport/IPv4TCPSocket.h"
#include "sensors/transport/IPv4UDPSocket.h"
#include "sensors/transport/IPv6TCPSocket.h"
#include "sensors/transport/IPv6UDPSocket.h"

#include <netinet/in.h>

#include <list>
#include <memory>
#include <string>

namespace skyvane {

/// The older way to the same sockets: free functions over handles of one kind, as the update client, the forwarders and
/// the simulator links use them. Every maker gives null when the system refuses; every other function takes a null
/// socket and fails.
using Socket = ISocket;
using Ipv4Socket = IPv4Socket;
using Ipv6Socket = IPv6Socket;
using Ipv4UDPSocket = IPv4UDPSocket;
using Ipv6UDPSocket = IPv6UDPSocket;

std::unique_ptr<Socket> CreateIpv4UDPSocket(bool broadcast);
/// Broadcast: datagrams to a group reach listeners on this host too.
std::unique_ptr<Socket> CreateIpv6UDPSocket(bool broadcast);
std::unique_ptr<Socket> CreateIpv4TCPSocket();
/// With IPv4 reception a bound socket hears peers of both versions.
std::unique_ptr<Socket> CreateIpv6TCPSocket(bool ipv4Reception);
/// Connects to the first address that answers on the port, each within the time-out (seconds plus microseconds).
std::unique_ptr<Socket> CreateTCPSocketFromList(const std::list<IpAddress>& addresses, int port, int timeoutSeconds,
                                                int timeoutMicroseconds);

/// Where hlp_send goes. A numeric address of the socket's own version.
bool SetUDPSocketTarget(Socket* socket, const std::string& address, int port);
bool BindSocket(Socket* socket, int port);
/// The port that a socket is bound to; -1 for none.
int GetSocketPort(const Socket* socket);
/// Who sent the last datagram; a bad address before the first.
IpAddress GetUDPSocketSender(const Socket* socket);
/// Sizes in bytes of what the system holds for the socket.
bool SetSocketBuffer(Socket* socket, int sendBytes, int receiveBytes);
/// True when a stream has been connected and takes bytes now.
bool isTCPSocketReadyToWrite(Socket* socket);
/// Joins or leaves a group of version 6 on the system's default interface.
bool AddIpv6MulticastMembership(Socket* socket, const std::string& group);
bool DropIpv6MulticastMembership(Socket* socket, const std::string& group);

/// As ISocket::send and ISocket::recv; -1 for a null socket.
int hlp_send(Socket* socket, const char* bytes, unsigned length);
int hlp_recv(Socket* socket, char* buffer, unsigned length, bool blocking);

std::string hlp_ipv42string(in_addr address);
std::string hlp_ipv62string(in6_addr address);

} // namespace skyvane
