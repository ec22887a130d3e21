#include "sensors/transport/Socket.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(Socket, datagramsGoToTheTargetThatWasSet) {
    auto receiver = CreateIpv4UDPSocket(false);
    auto sender = CreateIpv4UDPSocket(true);
    ASSERT_TRUE(receiver && sender);
    ASSERT_TRUE(BindSocket(receiver.get(), 0));
    EXPECT_TRUE(SetSocketBuffer(receiver.get(), 30000, 30000));
    const int port = static_cast<Ipv4UDPSocket&>(*receiver).getBoundPort();
    EXPECT_FALSE(SetUDPSocketTarget(sender.get(), "::1", port)) << "another version";
    EXPECT_TRUE(SetUDPSocketTarget(sender.get(), "127.0.0.1", port));
    EXPECT_EQ(hlp_send(sender.get(), "abc", 3), 3);
    char buffer[8];
    EXPECT_EQ(hlp_recv(receiver.get(), buffer, sizeof(buffer), true), 3);
    EXPECT_EQ(hlp_recv(receiver.get(), buffer, sizeof(buffer), false), 0);
}

TEST(Socket, aGroupOfThisHostIsJoinedAndLeft) {
    auto socket = CreateIpv6UDPSocket(true);
    ASSERT_TRUE(socket);
    EXPECT_FALSE(AddIpv6MulticastMembership(socket.get(), "::1"));
    EXPECT_FALSE(AddIpv6MulticastMembership(socket.get(), "127.0.0.1"));
    EXPECT_FALSE(DropIpv6MulticastMembership(socket.get(), "FF02::2")) << "never joined";
    if (AddIpv6MulticastMembership(socket.get(), "FF02::2")) {
        EXPECT_TRUE(DropIpv6MulticastMembership(socket.get(), "FF02::2"));
    }
}

TEST(Socket, theFirstAddressThatAnswersIsTaken) {
    auto listener = CreateIpv6TCPSocket(true);
    ASSERT_TRUE(BindSocket(listener.get(), 0));
    auto& server = static_cast<IPv6TCPSocket&>(*listener);
    const std::list<IpAddress> addresses{{}, {"::1", 0}, {"127.0.0.1", 0}};
    EXPECT_EQ(CreateTCPSocketFromList(addresses, server.getBoundPort(), 1, 0), nullptr) << "nobody listens";
    ASSERT_TRUE(server.listen(2));
    auto first = CreateTCPSocketFromList(addresses, server.getBoundPort(), 1, 0);
    ASSERT_TRUE(first);
    EXPECT_TRUE(isTCPSocketReadyToWrite(first.get()));
    auto fourth = CreateTCPSocketFromList({{"127.0.0.1", 0}}, server.getBoundPort(), 0, 500000);
    EXPECT_TRUE(isTCPSocketReadyToWrite(fourth.get()));
    EXPECT_FALSE(isTCPSocketReadyToWrite(CreateIpv4TCPSocket().get()));
    EXPECT_EQ(CreateTCPSocketFromList({}, 1, 1, 0), nullptr);
}

TEST(Socket, nothingHappensWithoutASocket) {
    char buffer[1] = {};
    EXPECT_EQ(hlp_send(nullptr, buffer, 1), -1);
    EXPECT_EQ(hlp_recv(nullptr, buffer, 1, true), -1);
    EXPECT_FALSE(BindSocket(nullptr, 1));
    EXPECT_FALSE(SetSocketBuffer(nullptr, 1, 1));
    EXPECT_FALSE(SetUDPSocketTarget(nullptr, "127.0.0.1", 1));
    EXPECT_FALSE(isTCPSocketReadyToWrite(nullptr));
    EXPECT_FALSE(AddIpv6MulticastMembership(nullptr, "FF02::2"));
}

TEST(Socket, addressesAsText) {
    EXPECT_EQ(hlp_ipv42string({htonl(INADDR_LOOPBACK)}), "127.0.0.1");
    EXPECT_EQ(hlp_ipv62string(in6addr_loopback), "::1");
}

} // namespace
} // namespace skyvane
