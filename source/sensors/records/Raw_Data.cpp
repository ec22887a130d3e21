#include "sensors/records/Raw_Data.h"

#include "core/text/Numbers.h"
#include "sensors/records/MatrixForm.h"

#include <iostream>

namespace skyvane {
namespace {

constexpr size_t LengthFieldLength = 4;
/// Everything behind the text.
constexpr size_t TailLength = 9 * 8 + 4 + 72 + 72 + 16;

void writeVector(ByteWriter& out, const Raw_Data::Vector& v) {
    out.little(v.X);
    out.little(v.Y);
    out.little(v.Z);
}

void readVector(ByteReader& in, Raw_Data::Vector& v) {
    v.X = in.little<double>();
    v.Y = in.little<double>();
    v.Z = in.little<double>();
}

/// A part that is led by its 32-bit length. Null when the length is negative or larger than what is left.
const uint8_t* takePart(ByteReader& in, int32_t* length) {
    *length = in.little<int32_t>();
    if (in.fail() || *length < 0 || static_cast<size_t>(*length) > in.remaining())
        return nullptr;
    return in.take(static_cast<size_t>(*length));
}

} // namespace

void* Raw_Data::serialize(int* length) {
    int gpsLength = 0;
    const void* gpsForm = gps.serialize(&gpsLength);
    const size_t need = 2 * LengthFieldLength + static_cast<size_t>(gpsLength) + text.size() + TailLength;
    uint8_t* bytes = form_.reserve(need);
    ByteWriter out(bytes, need);
    out.little(static_cast<int32_t>(gpsLength));
    out.bytes(gpsForm, static_cast<size_t>(gpsLength));
    out.little(static_cast<int32_t>(text.size()));
    out.bytes(text.data(), text.size());
    for (const Vector* v : {&acc, &gyr, &mag})
        writeVector(out, *v);
    for (const bool available : {accAvail, gyrAvail, magAvail, gpsAvail})
        out.little(static_cast<uint8_t>(available ? 1 : 0));
    writeMatrix(out, m);
    writeMatrix(out, delta);
    out.little(deltaT0);
    out.little(deltaT1);
    *length = static_cast<int>(out.size());
    return bytes;
}

void Raw_Data::deserialize(void* bytes, int length) {
    if (!bytes || length < 0)
        return;
    ByteReader in(bytes, static_cast<size_t>(length));
    int32_t gpsLength = 0;
    const uint8_t* gpsForm = takePart(in, &gpsLength);
    if (!gpsForm)
        return;
    int32_t textLength = 0;
    const uint8_t* textBytes = takePart(in, &textLength);
    if (!textBytes || in.remaining() < TailLength)
        return;

    gps.deserialize(const_cast<uint8_t*>(gpsForm), gpsLength);
    text.assign(reinterpret_cast<const char*>(textBytes), static_cast<size_t>(textLength));
    for (Vector* v : {&acc, &gyr, &mag})
        readVector(in, *v);
    for (bool* available : {&accAvail, &gyrAvail, &magAvail, &gpsAvail})
        *available = in.little<uint8_t>() != 0;
    readMatrix(in, m);
    readMatrix(in, delta);
    deltaT0 = in.little<double>();
    deltaT1 = in.little<double>();
}

void Raw_Data::Print() {
    const auto printVector = [](const char* name, bool available, const Vector& v) {
        std::cout << name << (available ? ": " : " (not available): ") << toText(v.X) << ", " << toText(v.Y) << ", "
                  << toText(v.Z) << "\n";
    };
    printVector("Acceleration", accAvail, acc);
    printVector("Gyroscope", gyrAvail, gyr);
    printVector("Magnetometer", magAvail, mag);
    std::cout << (gpsAvail ? "GPS:\n" : "GPS (not available):\n");
    gps.Print();
    std::cout << text << "\n";
}

} // namespace skyvane
