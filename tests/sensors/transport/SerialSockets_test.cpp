#include "sensors/transport/BluetoothDiscovery.h"
#include "sensors/transport/ConcurrentComSocket.h"
#include "sensors/transport/PseudoTerminal.h"
#include "sensors/transport/RFCommSocket.h"
#include "sensors/transport/RS232Socket.h"

#include <gtest/gtest.h>

#include <termios.h>

#include <chrono>
#include <future>
#include <thread>

namespace skyvane {
namespace {

/// What a socket receives until it has so many bytes.
std::string receive(IComSocket& socket, size_t count) {
    std::string text;
    for (int i = 0; i < 3000 && text.size() < count; ++i) {
        char buffer[7];
        text.append(buffer, static_cast<size_t>(socket.recvData(buffer, sizeof buffer)));
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return text;
}

TEST(RS232Target, isSplitAtItsLastColon) {
    EXPECT_EQ(RS232Target("/dev/ttyUSB0").baudRate, 4800);
    EXPECT_EQ(RS232Target("/dev/ttyUSB0:115200").baudRate, 115200);
    EXPECT_EQ(RS232Target("/dev/by:path/x:9600").path, "/dev/by:path/x");
    EXPECT_EQ(RS232Target(":9600").path, ":9600");
}

TEST(RS232Socket, talksRawBothWaysAtItsRate) {
    PseudoTerminal device;
    RS232Socket socket;
    char hello[] = "hello";
    EXPECT_FALSE(socket.sendData(hello, 5));
    ASSERT_TRUE(socket.connectSocket(device.path() + ":115200"));
    termios settings = device.settings();
    EXPECT_EQ(cfgetospeed(&settings), static_cast<speed_t>(B115200));
    EXPECT_EQ(settings.c_lflag & (ICANON | ECHO), 0u);
    const std::string odd("a\r\n\0\x03\x04\xff$", 8);
    device.write(odd);
    EXPECT_EQ(receive(socket, odd.size()), odd);
    EXPECT_EQ(socket.getAvailableBytes(), 0);
    EXPECT_TRUE(socket.sendData(hello, 5));
    EXPECT_EQ(device.read(5), "hello");
    socket.closeSocket();
    device.write("x");
    char buffer[4];
    EXPECT_EQ(socket.recvData(buffer, 4), 0);
    ASSERT_TRUE(socket.connectSocket(device.path() + ":12345"));
    settings = device.settings();
    EXPECT_EQ(cfgetospeed(&settings), static_cast<speed_t>(B4800));
}

TEST(RS232Socket, aDeviceThatVanishesOrNeverWasIsQuiet) {
    RS232Socket socket;
    EXPECT_FALSE(socket.connectSocket("/dev/none:4800"));
    EXPECT_FALSE(socket.connectSocket("/dev/null")) << "no serial port";
    char buffer[16];
    {
        PseudoTerminal device;
        ASSERT_TRUE(socket.connectSocket(device.path()));
    }
    EXPECT_EQ(socket.recvData(buffer, 16), 0);
    EXPECT_FALSE(socket.sendData(buffer, 16));
    PseudoTerminal another;
    ASSERT_TRUE(socket.connectSocket(another.path()));
    another.write("back");
    EXPECT_EQ(receive(socket, 4), "back");
}

TEST(RS232Socket, aFullLineBlocksNobody) {
    PseudoTerminal device;
    RS232Socket socket;
    ASSERT_TRUE(socket.connectSocket(device.path()));
    std::string much(1000000, 'x');
    EXPECT_FALSE(socket.sendData(much.data(), static_cast<int>(much.size())));
}

/// Without an adapter the absence is told, with one a search is somebody else's business.
TEST(Bluetooth, aBadAddressOrNoAdapterIsTold) {
    RFCommSocket socket;
    EXPECT_FALSE(socket.connectSocket("nonsense"));
    char byte = 0;
    EXPECT_EQ(socket.recvData(&byte, 1), 0);
    std::vector<BluetoothDevice> devices;
    const int result = BluetoothDiscovery(&devices);
    EXPECT_TRUE(result == BLUETOOTH_FOUND || devices.empty());
}

/// A socket whose connect waits for the test.
class GatedSocket : public IComSocket {
public:
    struct Log {
        std::promise<bool> gate;
        std::atomic<int> connects{0}, closes{0};
        std::atomic<bool> deleted{false};
        std::string target;
    };
    explicit GatedSocket(std::shared_ptr<Log> log) : log_(std::move(log)) {}
    ~GatedSocket() override { log_->deleted = true; }
    bool connectSocket(const std::string& target) override {
        log_->target = target;
        ++log_->connects;
        return log_->connects > 1 || log_->gate.get_future().get();
    }
    bool sendData(char*, int) override { return true; }
    int recvData(char*, int) override { return 3; }
    int getAvailableBytes() override { return 3; }
    void closeSocket() override { ++log_->closes; }

private:
    std::shared_ptr<Log> log_;
};

template <class Condition>
bool waitUntil(Condition condition) {
    for (int i = 0; i < 5000 && !condition(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return condition();
}

TEST(ConcurrentComSocket, connectsWhileItsUserGoesOn) {
    auto log = std::make_shared<GatedSocket::Log>();
    ConcurrentComSocket socket(std::make_unique<GatedSocket>(log));
    char byte = 0;
    EXPECT_EQ(socket.getCurrentState(), 0);
    EXPECT_EQ(socket.tryConnectSocket("first"), 3);
    EXPECT_EQ(socket.tryConnectSocket("second"), 3);
    EXPECT_EQ(socket.recvData(&byte, 1), 0);
    EXPECT_FALSE(socket.sendData(&byte, 1));
    log->gate.set_value(true);
    ASSERT_TRUE(waitUntil([&] { return socket.getCurrentState() == 2; }));
    EXPECT_EQ(log->target, "first");
    EXPECT_EQ(socket.recvData(&byte, 1), 0) << "not taken notice of yet";
    EXPECT_EQ(socket.tryConnectSocket("third"), 2);
    EXPECT_EQ(socket.getCurrentState(), 1);
    EXPECT_EQ(socket.recvData(&byte, 1), 3);
    const int closes = log->closes;
    socket.closeSocket();
    EXPECT_EQ(socket.recvData(&byte, 1), 0);
    EXPECT_TRUE(waitUntil([&] { return log->closes > closes; }));
    EXPECT_TRUE(socket.connectSocket("fourth"));
    EXPECT_EQ(log->target, "fourth");
}

TEST(ConcurrentComSocket, aFailureLetsItsUserTryAgain) {
    auto log = std::make_shared<GatedSocket::Log>();
    log->gate.set_value(false);
    ConcurrentComSocket socket(std::make_unique<GatedSocket>(log));
    EXPECT_FALSE(socket.connectSocket("x"));
    EXPECT_EQ(socket.getCurrentState(), 0);
    EXPECT_TRUE(socket.connectSocket("x"));
}

TEST(ConcurrentComSocket, aConnectThatHangsHoldsNobodyUp) {
    auto log = std::make_shared<GatedSocket::Log>();
    {
        ConcurrentComSocket socket(std::make_unique<GatedSocket>(log));
        socket.tryConnectSocket("x");
        ASSERT_TRUE(waitUntil([&] { return log->connects > 0; }));
    }
    EXPECT_FALSE(log->deleted);
    log->gate.set_value(true);
    EXPECT_TRUE(waitUntil([&] { return log->deleted.load(); })) << "its thread takes it along";
}

} // namespace
} // namespace skyvane
