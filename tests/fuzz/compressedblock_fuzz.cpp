#include "core/files/CompressedBlock.h"

#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <vector>

// Reads blocks into a buffer of exact size, which a stream that bursts its claim would overrun, and into its own.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    std::istringstream own(bytes);
    int length = 0;
    const auto read = skyvane::compressedFileToBuffer(own, length);

    std::istringstream given(bytes);
    std::vector<unsigned char> buffer(300);
    int room = static_cast<int>(buffer.size());
    const bool fits = skyvane::compressedFileToBuffer(given, room, buffer.data()) != nullptr;
    if (fits != (read != nullptr && length <= 300))
        std::abort();
    return 0;
}
