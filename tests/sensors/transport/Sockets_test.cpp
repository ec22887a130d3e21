#include "sensors/transport/IPv4TCPSocket.h"
#include "sensors/transport/IPv4UDPSocket.h"
#include "sensors/transport/IPv6TCPSocket.h"
#include "sensors/transport/IPv6UDPSocket.h"
#include "sensors/transport/connectWithTimeout.h"
#include "sensors/transport/queryIPv4BroadcastAdresses.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <string>

namespace skyvane {
namespace {

struct Version4 {
    using UDP = IPv4UDPSocket;
    using TCP = IPv4TCPSocket;
    static constexpr const char* loopback = "127.0.0.1";
};
struct Version6 {
    using UDP = IPv6UDPSocket;
    using TCP = IPv6TCPSocket;
    static constexpr const char* loopback = "::1";
};

/// Puts a stream socket that was never connected in the place of a handle: every call on it then fails with ENOTCONN,
/// as on a socket that the system has invalidated.
void invalidate(const ISocket& socket, int family) {
    const int other = ::socket(family, SOCK_STREAM, 0);
    ASSERT_GE(dup2(other, socket.getSocketHandle()), 0);
    ::close(other);
}

int familyOf(const IpAddress& address) {
    return address.getInternalRepresentation()->sa_family;
}

template <class Version>
struct Sockets : testing::Test {
    typename Version::UDP::Address here(int port) { return {Version::loopback, port}; }
};
using Versions = testing::Types<Version4, Version6>;
TYPED_TEST_SUITE(Sockets, Versions);

TYPED_TEST(Sockets, datagramsArriveWithTheirSender) {
    typename TypeParam::UDP receiver, sender;
    ASSERT_TRUE(receiver.bind(0));
    ASSERT_TRUE(sender.bind(0));
    ASSERT_TRUE(sender.setUDPTarget(this->here(receiver.getBoundPort())));
    char buffer[16];
    EXPECT_EQ(receiver.recv(buffer, sizeof(buffer), false), 0);
    EXPECT_EQ(receiver.recvWaiting(buffer, sizeof(buffer)), -1);

    EXPECT_EQ(sender.send("hello", 5), 5);
    EXPECT_EQ(sender.send("", 0), 0);
    EXPECT_EQ(sender.send("cut to buffer size", 18), 18);
    EXPECT_EQ(receiver.getAvailableBytes(), 5);
    EXPECT_EQ(receiver.recv(buffer, sizeof(buffer), true), 5);
    EXPECT_EQ(std::string(buffer, 5), "hello");
    EXPECT_EQ(receiver.getLastDatagramAddress().getPort(), sender.getBoundPort());
    EXPECT_EQ(receiver.getLastDatagramAddress().getAddressAsString(), TypeParam::loopback);
    EXPECT_EQ(receiver.recvWaiting(buffer, sizeof(buffer)), 0) << "an empty datagram isn't the end";
    EXPECT_EQ(receiver.recvWaiting(buffer, sizeof(buffer)), 16);
    EXPECT_EQ(receiver.recvWaiting(buffer, sizeof(buffer)), -1);
}

TYPED_TEST(Sockets, aSecondBindOfAPortFails) {
    typename TypeParam::UDP first, second;
    ASSERT_TRUE(first.bind(0));
    EXPECT_FALSE(second.bind(first.getBoundPort()));
    EXPECT_FALSE(second.bind(-1));
    EXPECT_FALSE(second.bind(65536));
    EXPECT_EQ(second.getBoundPort(), -1);
}

TYPED_TEST(Sockets, anInvalidatedReceiverHearsAgainOnItsPort) {
    typename TypeParam::UDP receiver, sender;
    receiver.setReceiveBufferSize(20000);
    ASSERT_TRUE(receiver.bind(0));
    const int port = receiver.getBoundPort();
    ASSERT_TRUE(sender.setUDPTarget(this->here(port)));
    invalidate(receiver, familyOf(sender.getUDPTarget()));

    char buffer[16];
    EXPECT_EQ(receiver.recv(buffer, sizeof(buffer), false), 0) << "restored, and nothing waits";
    EXPECT_EQ(receiver.getBoundPort(), port);
    EXPECT_EQ(sender.send("again", 5), 5);
    EXPECT_EQ(receiver.recv(buffer, sizeof(buffer), true), 5);
    int size = 0;
    socklen_t length = sizeof(size);
    getsockopt(receiver.getSocketHandle(), SOL_SOCKET, SO_RCVBUF, &size, &length);
    EXPECT_EQ(size, 40000) << "the system doubles what was set";
}

TYPED_TEST(Sockets, anInvalidatedSenderKeepsItsTarget) {
    typename TypeParam::UDP receiver, sender;
    ASSERT_TRUE(receiver.bind(0));
    ASSERT_TRUE(sender.setUDPTarget(this->here(receiver.getBoundPort())));
    char nothing[1];
    invalidate(sender, familyOf(sender.getUDPTarget()));
    EXPECT_EQ(sender.recv(nothing, sizeof(nothing), false), 0) << "restored without a port";
    EXPECT_EQ(sender.send("x", 1), 1);
    char buffer[4];
    EXPECT_EQ(receiver.recv(buffer, sizeof(buffer), true), 1);
}

TYPED_TEST(Sockets, aRestoreThatFailsIsNotTriedAgain) {
    typename TypeParam::UDP receiver, thief;
    ASSERT_TRUE(receiver.bind(0));
    const int port = receiver.getBoundPort();
    invalidate(receiver, familyOf(this->here(1)));
    ASSERT_TRUE(thief.bind(port)) << "the port of the lost socket is free";
    char buffer[4];
    receiver.recv(buffer, sizeof(buffer), false);
    invalidate(receiver, familyOf(this->here(1)));
    thief.setSocketHandle(-1);
    EXPECT_EQ(receiver.recv(buffer, sizeof(buffer), false), -1);
}

TYPED_TEST(Sockets, streamsConnectTalkAndRestore) {
    typename TypeParam::TCP server, client;
    ASSERT_TRUE(server.bind(0));
    ASSERT_TRUE(server.listen(4));
    EXPECT_EQ(server.accept(0), nullptr);
    ASSERT_TRUE(client.connect(this->here(server.getBoundPort()), 2000));
    auto peer = server.accept(2000);
    ASSERT_NE(peer, nullptr);
    char buffer[8];
    EXPECT_EQ(client.recv(buffer, sizeof(buffer), false), 0);
    EXPECT_EQ(client.send("hi", 2), 2);
    EXPECT_EQ(peer->recv(buffer, sizeof(buffer), true), 2);

    invalidate(client, familyOf(this->here(1)));
    EXPECT_EQ(client.recv(buffer, sizeof(buffer), false), 0);
    auto again = server.accept(2000);
    ASSERT_NE(again, nullptr) << "the client has connected to its stored address";
    EXPECT_EQ(again->send("back", 4), 4);
    EXPECT_EQ(client.recv(buffer, sizeof(buffer), true), 4);

    invalidate(*again, familyOf(this->here(1)));
    EXPECT_EQ(again->recv(buffer, sizeof(buffer), false), -1) << "an accepted socket knows no address";
}

TYPED_TEST(Sockets, aRefusedConnectLeavesAClosedSocketThatCanTryAgain) {
    typename TypeParam::TCP server, client;
    ASSERT_TRUE(server.bind(0));
    EXPECT_FALSE(client.connect(this->here(server.getBoundPort()), 2000)) << "bound, but nobody listens";
    EXPECT_FALSE(client.isGood());
    ASSERT_TRUE(server.listen(1));
    EXPECT_TRUE(client.connect(this->here(server.getBoundPort()), 2000));
    EXPECT_FALSE(client.connect({}, 10));
}

TEST(ConnectWithTimeout, tellsTheKindOfFailure) {
    IPv4TCPSocket server;
    ASSERT_TRUE(server.bind(0));
    const IPv4Address address("127.0.0.1", server.getBoundPort());
    const auto connectTo = [&](int handle) {
        return connectWithTimeout(handle, 1000, address.getInternalRepresentation(), sizeof(sockaddr_in));
    };
    IPv4TCPSocket refused;
    EXPECT_NE(connectTo(refused.getSocketHandle()), 0);
    EXPECT_EQ(connectTo(-1), -1);
    ASSERT_TRUE(server.listen(1));
    IPv4TCPSocket good;
    EXPECT_EQ(connectTo(good.getSocketHandle()), 0);
    EXPECT_EQ(fcntl(good.getSocketHandle(), F_GETFL) & O_NONBLOCK, 0) << "blocking again";
    EXPECT_FALSE(waitForSocket(good.getSocketHandle(), SocketEvent::Readable, 1));
    EXPECT_TRUE(waitForSocket(good.getSocketHandle(), SocketEvent::Writable, 1000));
}

TEST(IPv6UDPSocket, hearsIPv4OnlyWhereAllowed) {
    for (const bool allowed : {true, false}) {
        IPv6UDPSocket receiver;
        receiver.setIPv4ReceptionEnabled(allowed);
        ASSERT_TRUE(receiver.bind(0));
        IPv4UDPSocket sender;
        ASSERT_TRUE(sender.setUDPTarget({"127.0.0.1", receiver.getBoundPort()}));
        EXPECT_EQ(sender.send("four", 4), 4);
        char buffer[8];
        EXPECT_EQ(receiver.recvWaiting(buffer, sizeof(buffer)), allowed ? 4 : -1);
    }
}

TEST(IpAddress, takesOnlyWhatItIs) {
    EXPECT_EQ(IPv4Address("10.1.2.3", 4000).getAddressAsString(), "10.1.2.3");
    EXPECT_EQ(IPv4Address("10.1.2.3", 4000).getPort(), 4000);
    EXPECT_EQ(IPv6Address("FF02::1", 1991).getAddressAsString(), "ff02::1");
    for (const char* text : {"", "::1", "1.2.3.4.5", "example", "1.2.3.400", "1.2.3.4 "})
        EXPECT_FALSE(IPv4Address(text, 1).isGood()) << text;
    EXPECT_FALSE(IPv6Address("127.0.0.1", 1).isGood());
    EXPECT_FALSE(IPv4Address("127.0.0.1", 65536).isGood());
    EXPECT_FALSE(IPv4Address("127.0.0.1", -1).isGood());
    EXPECT_EQ(IpAddress("::1", 5).getIPVersion(), 6);
    EXPECT_EQ(IpAddress("127.0.0.1", 5).createNewCopy()->getIPVersion(), 4);

    IPv4Address four("1.2.3.4", 5);
    const IPv6Address six("::1", 6);
    EXPECT_FALSE(four.setInternalRepresentation(six.getInternalRepresentation(), six.getInternalLength()));
    EXPECT_FALSE(four.setInternalRepresentation(four.getInternalRepresentation(), 8));
    EXPECT_EQ(four.getAddressAsString(), "1.2.3.4");
    EXPECT_EQ(IpAddress().getAddressAsString(), "");
}

TEST(QueryIPv4BroadcastAdresses, givesThePortWithEach) {
    for (const IPv4Address& address : queryIPv4BroadcastAdresses(1991)) {
        EXPECT_EQ(address.getPort(), 1991);
        EXPECT_TRUE(address.isGood());
    }
}

} // namespace
} // namespace skyvane
