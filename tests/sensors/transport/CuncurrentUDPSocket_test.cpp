#include "sensors/transport/CuncurrentUDPSocket.h"

#include "sensors/transport/DatagramQueue.h"
#include "sensors/transport/IPv4UDPSocket.h"
#include "sensors/transport/IPv6UDPSocket.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>

namespace skyvane {
namespace {

TEST(DatagramQueue, anEntryMustBeSmallerThanTheFreeSpace) {
    DatagramQueue queue(20);
    char* data = nullptr;
    EXPECT_EQ(queue.next(data), 0u);
    EXPECT_FALSE(queue.push("0123456789abcdef", 16)) << "16 + 4 isn't below 20";
    EXPECT_TRUE(queue.push("0123456789", 10));
    EXPECT_FALSE(queue.push("ab", 2)) << "2 + 4 isn't below 6";
    EXPECT_TRUE(queue.push("z", 1)) << "a smaller one still goes in";
    EXPECT_EQ(queue.next(data), 10u);
    EXPECT_EQ(std::string(data, 10), "0123456789");
    EXPECT_EQ(queue.next(data), 1u);
    EXPECT_EQ(*data, 'z');
    EXPECT_EQ(queue.next(data), 0u);
    queue.clear();
    EXPECT_TRUE(queue.push("0123456789abcde", 15));
    EXPECT_FALSE(DatagramQueue(0).push("", 0));
}

/// The next datagram, waited for.
std::string nextOf(CuncurrentUDPSocket& socket) {
    for (int i = 0; i < 5000; ++i) {
        char* data = nullptr;
        if (const unsigned length = socket.getNextDatagram(data))
            return {data, length};
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return "nothing came";
}

template <class UDPSocket>
void sendTo(int port, const std::string& bytes, const char* address) {
    UDPSocket sender;
    ASSERT_TRUE(sender.setUDPTarget({address, port}));
    ASSERT_EQ(sender.send(bytes.data(), static_cast<unsigned>(bytes.size())), static_cast<int>(bytes.size()));
}

TEST(CuncurrentUDPSocket, datagramsOfBothVersionsComeInOrderAndEmptyOnesDont) {
    for (const bool ipv4 : {true, false}) {
        CuncurrentUDPSocket socket(2048, 65536, ipv4, 0);
        ASSERT_TRUE(socket.isGood());
        for (const char* text : {"one", "", "two", "three"}) {
            if (ipv4)
                sendTo<IPv4UDPSocket>(socket.getBoundPort(), text, "127.0.0.1");
            else
                sendTo<IPv6UDPSocket>(socket.getBoundPort(), text, "::1");
        }
        EXPECT_EQ(nextOf(socket), "one");
        EXPECT_EQ(nextOf(socket), "two");
        EXPECT_EQ(nextOf(socket), "three");
    }
}

TEST(CuncurrentUDPSocket, whatDoesntFitIsLostAndSmallerOnesStillGoIn) {
    CuncurrentUDPSocket socket(2048, 100, true, 0);
    for (const size_t length : {60u, 60u, 10u})
        sendTo<IPv4UDPSocket>(socket.getBoundPort(), std::string(length, 'x'), "127.0.0.1");
    sendTo<IPv4UDPSocket>(socket.getBoundPort(), "end", "127.0.0.1");
    // Reading between the arrivals would make room, so that the reader only begins when all must have come.
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_EQ(nextOf(socket).size(), 60u);
    EXPECT_EQ(nextOf(socket).size(), 10u);
    EXPECT_EQ(nextOf(socket), "end");
}

TEST(CuncurrentUDPSocket, thePortIsFreeAtOnceAfterTheEnd) {
    int port = 0;
    for (int i = 0; i < 50; ++i) {
        CuncurrentUDPSocket socket(2048, 4096, true, port);
        ASSERT_TRUE(socket.isGood()) << i;
        port = socket.getBoundPort();
        if (i % 2)
            sendTo<IPv4UDPSocket>(port, "x", "127.0.0.1");
    }
    CuncurrentUDPSocket holder(2048, 4096, true, port);
    CuncurrentUDPSocket late(2048, 4096, true, port);
    char* data = nullptr;
    EXPECT_FALSE(late.isGood());
    EXPECT_EQ(late.getNextDatagram(data), 0u);
    CuncurrentUDPSocket unbound(2048, 4096, true, 65536);
    EXPECT_TRUE(unbound.isGood());
    EXPECT_EQ(unbound.getBoundPort(), -1);
}

TEST(CuncurrentUDPSocket, bytesStayWholeUnderLoadAndDuringReading) {
    CuncurrentUDPSocket socket(2048, 262144, true, 0);
    constexpr int count = 3000;
    std::thread sender([port = socket.getBoundPort()] {
        IPv4UDPSocket out;
        out.setUDPTarget({"127.0.0.1", port});
        for (int i = 0; i < count; ++i) {
            const std::string bytes(static_cast<size_t>(1 + i % 700), static_cast<char>(i));
            out.send(bytes.data(), static_cast<unsigned>(bytes.size()));
        }
        for (int i = 0; i < 20; ++i) {
            out.send("end of it", 9);
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    });
    int received = 0;
    for (std::string text; (text = nextOf(socket)) != "end of it"; ++received) {
        ASSERT_NE(text, "nothing came");
        ASSERT_EQ(text.find_first_not_of(text[0]), std::string::npos);
    }
    sender.join();
    EXPECT_GT(received, 0);
    EXPECT_LE(received, count);
}

} // namespace
} // namespace skyvane
