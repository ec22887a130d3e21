#pragma once

#include "sensors/records/ISensorData.h"
#include "sensors/records/SerialBuffer.h"
#include "sensors/records/TrafficElement.h"

#include <cstdint>
#include <map>
#include <memory>

namespace skyvane {

/// The traffic around, at one instant.
///
/// Byte form: the version byte, then one block of 53 bytes per element in the order of the map. A form that ends within
/// a block gives the elements before it. Elements of one address replace each other, the last one stays.
class Traffic_Data : public ISensorData {
public:
    static constexpr int ElementFormLength = 53;

    Type getType() override { return Traffic; }
    void* serialize(int* length) override;
    void deserialize(void* bytes, int length) override;
    void Print() override;

    uint8_t version = 0;
    /// By ICAO address; some sources number their elements instead.
    std::map<uint32_t, std::unique_ptr<TrafficElement>> elements;

private:
    SerialBuffer form_;
};

} // namespace skyvane
