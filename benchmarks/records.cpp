// Allocations on the road of a record: its byte form, and a simulator's datagram from the socket to the record.
#include "Bench.h"
#include "support/QuietHost.h"

#include "core/bytes/ByteWriter.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"
#include "sensors/records/Raw_Data.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/records/UATUplink_Data.h"
#include "sensors/simulators/FlightGearSensor.h"
#include "sensors/simulators/FlightGearSensorFactory.h"
#include "sensors/simulators/XPlaneSensor.h"
#include "sensors/simulators/XPlaneSensorFactory.h"
#include "support/AllocationCounter.h"

#include <arpa/inet.h>
#include <cmath>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace skyvane {

namespace {

/// Records of variable length are measured with content.
void fill(ISensorData& record) {
    if (auto* traffic = dynamic_cast<Traffic_Data*>(&record)) {
        for (unsigned address = 0; address < 200; ++address)
            traffic->elements[address] = std::make_unique<TrafficElement>();
    } else if (auto* raw = dynamic_cast<Raw_Data*>(&record)) {
        raw->text.assign(3000, '$');
    }
}

/// The most that the second to the tenth serialize of any record takes.
double recordAllocations(bool) {
    QuietHost host;
    SensorManager manager(&host);
    addStandardDataFactories(manager);
    size_t most = 0;
    for (int type = 0; type < ISensorData::TypeCount; ++type) {
        const auto record = manager.createSensorData(static_cast<ISensorData::Type>(type));
        fill(*record);
        int length = 0;
        record->serialize(&length);
        const AllocationCounter counter;
        for (int i = 0; i < 9; ++i)
            record->serialize(&length);
        most = std::max(most, counter.count());
    }
    return static_cast<double>(most);
}

class LoopbackSender {
public:
    explicit LoopbackSender(int port) : socket_(::socket(AF_INET, SOCK_DGRAM, 0)) {
        target_.sin_family = AF_INET;
        target_.sin_port = htons(static_cast<uint16_t>(port));
        target_.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    }
    ~LoopbackSender() { ::close(socket_); }
    void send(const void* bytes, size_t count) {
        ::sendto(socket_, bytes, count, 0, reinterpret_cast<const sockaddr*>(&target_), sizeof target_);
    }

private:
    int socket_;
    sockaddr_in target_{};
};

size_t flightGearDatagram(uint8_t (&bytes)[168], int step) {
    ByteWriter out(bytes, sizeof bytes);
    for (double value :
         {0.02, 1.0 + step * 0.001, 0.1, 0.0, 0.0, 0.0, -9.81, 0.1, 0.1, 57.0, 100.0, 900.0, 42.0, -28.0, 1.5, 12.0})
        out.big(value);
    for (int value : {10, 20, step % 60, 1, 6, 2026})
        out.big(static_cast<int32_t>(value));
    out.big(980.0);
    out.big(95.0);
    return out.size();
}

size_t xplaneDatagram(uint8_t (&bytes)[512], int step) {
    ByteWriter out(bytes, sizeof bytes);
    out.bytes("DATA*", 5);
    for (int group : {1, 3, 6, 16, 17, 18, 20, 21, 22, 23, 24, 99}) {
        out.little(static_cast<int32_t>(group));
        for (int i = 0; i < 8; ++i)
            out.little(static_cast<float>(10 + i + 0.001 * step));
    }
    return out.size();
}

/// What `count` updates of a sensor take, each with a datagram waiting, once its buffers have grown.
template <class MakeDatagram>
size_t allocationsOf(ISensor& sensor, int port, int count, MakeDatagram makeDatagram) {
    LoopbackSender sender(port);
    size_t most = 0;
    for (int i = 0, taken = 0; taken < count && i < 4 * count; ++i) {
        sender.send(makeDatagram(i).first, makeDatagram(i).second);
        ::usleep(2000);
        const AllocationCounter counter;
        const bool fresh = sensor.Update();
        if (fresh && ++taken > 1)
            most = std::max(most, counter.count());
    }
    return most;
}

double datagramAllocations(bool smoke) {
    QuietHost host;
    SensorManager manager(&host);
    addStandardDataFactories(manager);
    const int count = smoke ? 20 : 500;

    FlightGearSensorFactory flightGearFactory(&manager);
    FlightGearSensor flightGear(&flightGearFactory, &manager, 0);
    uint8_t flightGearBytes[168];
    const size_t a = allocationsOf(flightGear, flightGear.getBoundPort(), count, [&](int step) {
        const size_t length = flightGearDatagram(flightGearBytes, step);
        return std::make_pair(flightGearBytes, length);
    });

    XPlaneSensorFactory xplaneFactory(&manager);
    XPlaneSensor xplane(&xplaneFactory, &manager, ISensor::GOOD, 0, XPlaneSensorFactory::BufferBytes);
    uint8_t xplaneBytes[512];
    const size_t b = allocationsOf(xplane, xplane.getBoundPort(), count, [&](int step) {
        const size_t length = xplaneDatagram(xplaneBytes, step);
        return std::make_pair(xplaneBytes, length);
    });
    return static_cast<double>(std::max(a, b));
}

} // namespace

std::vector<Bench> recordBenches() {
    return {{"records.allocations", Bench::Bound::AtMost, 0, recordAllocations},
            {"datagram.allocations", Bench::Bound::AtMost, 0, datagramAllocations}};
}

} // namespace skyvane
