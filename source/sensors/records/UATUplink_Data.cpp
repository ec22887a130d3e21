#include "sensors/records/UATUplink_Data.h"

#include "core/bytes/ByteReader.h"
#include "core/bytes/ByteWriter.h"

#include <iostream>

namespace skyvane {
namespace {

constexpr size_t CountFieldLength = 4;
constexpr size_t LengthFieldLength = 4;

} // namespace

void* UATUplink_Data::serialize(int* length) {
    size_t need = CountFieldLength;
    for (const auto& message : messages)
        need += LengthFieldLength + message.size();
    uint8_t* bytes = form_.reserve(need);
    ByteWriter out(bytes, need);
    out.little(static_cast<uint32_t>(messages.size()));
    for (const auto& message : messages) {
        out.little(static_cast<uint32_t>(message.size()));
        if (!message.empty())
            out.bytes(message.data(), message.size());
    }
    *length = static_cast<int>(out.size());
    return bytes;
}

void UATUplink_Data::deserialize(void* bytes, int length) {
    if (!bytes || length < static_cast<int>(CountFieldLength))
        return;
    messages.clear();
    ByteReader in(bytes, static_cast<size_t>(length));
    const auto count = in.little<uint32_t>();
    for (uint32_t i = 0; i < count; ++i) {
        const auto messageLength = in.little<uint32_t>();
        const uint8_t* message = in.fail() ? nullptr : in.take(messageLength);
        if (!message)
            return;
        messages.emplace_back(message, message + messageLength);
    }
}

void UATUplink_Data::Print() {
    std::cout << "UAT Package Count: " << std::to_string(messages.size()) << "\n";
    for (size_t i = 0; i < messages.size(); ++i)
        std::cout << "UAT Package " << std::to_string(i) << " has length " << std::to_string(messages[i].size())
                  << "\n";
}

} // namespace skyvane
