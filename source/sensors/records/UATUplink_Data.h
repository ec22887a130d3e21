#pragma once

#include "sensors/records/ISensorData.h"
#include "sensors/records/SerialBuffer.h"

#include <cstdint>
#include <vector>

namespace skyvane {

/// Uplink messages of the ground stations, as they were received.
///
/// Byte form: count of messages, then of each its length and its bytes. A form that ends within a message gives the
/// messages before it.
class UATUplink_Data : public ISensorData {
public:
    Type getType() override { return UATUplink; }
    void* serialize(int* length) override;
    void deserialize(void* bytes, int length) override;
    void Print() override;

    std::vector<std::vector<uint8_t>> messages;

private:
    SerialBuffer form_;
};

} // namespace skyvane
