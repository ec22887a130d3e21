#include "core/ini/UnicodeCfgParser.h"

#include <cstdint>
#include <cstdlib>

// The first byte is the number of columns; every row has that many strings, whatever the text.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0)
        return 0;
    skyvane::UnicodeCfgParser parser(data[0] % 8);
    parser.parseFromUTF8(std::string(reinterpret_cast<const char*>(data + 1), size - 1));
    for (const auto& row : parser.getResult())
        if (row.size() != data[0] % 8)
            std::abort();
    return 0;
}
