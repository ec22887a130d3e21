#include "sensors/records/Traffic_Data.h"

#include "core/bytes/ByteReader.h"
#include "core/bytes/ByteWriter.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <iostream>

namespace skyvane {
namespace {

// The block of an element. Offsets: address 0, longitude 4, latitude 12, altitude 20, velocity 24, climb rate 28,
// squawk 32, capability index 36, track 40, name 44.
void writeElement(ByteWriter& out, const TrafficElement& element) {
    out.little(element.icaoAddress);
    out.little(element.longitude);
    out.little(element.latitude);
    for (const int number :
         {element.altitude, element.velocity, element.climbRate, element.squawk, element.capabilityIndex})
        out.little(static_cast<int32_t>(number));
    out.little(element.track);
    const size_t nameLength = std::min(element.name.size(), TrafficElement::MaxNameLength);
    out.bytes(element.name.data(), nameLength);
    out.zeros(TrafficElement::MaxNameLength - nameLength);
}

void readElement(ByteReader& in, TrafficElement& element) {
    element.icaoAddress = in.little<uint32_t>();
    element.longitude = in.little<double>();
    element.latitude = in.little<double>();
    for (int* number :
         {&element.altitude, &element.velocity, &element.climbRate, &element.squawk, &element.capabilityIndex})
        *number = in.little<int32_t>();
    element.track = in.little<float>();
    const auto* name = reinterpret_cast<const char*>(in.take(TrafficElement::MaxNameLength));
    element.name.assign(name, std::find(name, name + TrafficElement::MaxNameLength, '\0'));
}

} // namespace

void* Traffic_Data::serialize(int* length) {
    const size_t need = 1 + elements.size() * ElementFormLength;
    uint8_t* bytes = form_.reserve(need);
    ByteWriter out(bytes, need);
    out.little(version);
    for (const auto& entry : elements)
        if (entry.second)
            writeElement(out, *entry.second);
    *length = static_cast<int>(out.size());
    return bytes;
}

void Traffic_Data::deserialize(void* bytes, int length) {
    if (!bytes || length < 0)
        return;
    elements.clear();
    if (length == 0)
        return;
    ByteReader in(bytes, static_cast<size_t>(length));
    version = in.little<uint8_t>();
    while (in.remaining() > 0) {
        if (in.remaining() < ElementFormLength) {
            std::cout << "Error: Wrong traffic format.\n";
            return;
        }
        auto element = std::make_unique<TrafficElement>();
        readElement(in, *element);
        elements[element->icaoAddress] = std::move(element);
    }
}

void Traffic_Data::Print() {
    std::cout << "Traffic, " << std::to_string(elements.size()) << " elements\n";
    for (const auto& entry : elements)
        if (const TrafficElement* element = entry.second.get())
            std::cout << std::to_string(element->icaoAddress) << " " << element->name << ": longitude "
                      << toText(element->longitude) << ", latitude " << toText(element->latitude) << ", altitude "
                      << toText(element->altitude) << "\n";
}

} // namespace skyvane
