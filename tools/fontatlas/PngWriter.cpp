#include "fontatlas/PngWriter.h"

#include <zlib.h>

namespace skyvane {

namespace {

void appendBigEndian(std::string& bytes, unsigned long value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift & 0xFF);
}

void appendChunk(std::string& png, const std::string& type, const std::string& data) {
    appendBigEndian(png, data.size());
    const std::string body = type + data;
    png += body;
    appendBigEndian(png, crc32(0, reinterpret_cast<const Bytef*>(body.data()), static_cast<uInt>(body.size())));
}

/// Rows of red, green, blue, alpha, each behind its filter byte: the difference from the row above.
std::string filteredRows(const GrayImage& alpha) {
    constexpr char filterUp = 2;
    std::string rows;
    for (int y = 0; y < alpha.height; ++y) {
        rows += filterUp;
        for (int x = 0; x < alpha.width; ++x) {
            const char white = y == 0 ? '\xFF' : '\0';
            const int above = y == 0 ? 0 : alpha.at(x, y - 1);
            rows.append(3, white);
            rows += static_cast<char>(alpha.at(x, y) - above);
        }
    }
    return rows;
}

} // namespace

std::string makeWhitePng(const GrayImage& alpha) {
    std::string header;
    appendBigEndian(header, static_cast<unsigned long>(alpha.width));
    appendBigEndian(header, static_cast<unsigned long>(alpha.height));
    header += std::string("\x08\x06\0\0\0", 5); // eight bits, colour with alpha, no interlace

    const std::string rows = filteredRows(alpha);
    uLongf size = compressBound(static_cast<uLong>(rows.size()));
    std::string data(size, '\0');
    compress2(reinterpret_cast<Bytef*>(&data[0]), &size, reinterpret_cast<const Bytef*>(rows.data()),
              static_cast<uLong>(rows.size()), Z_BEST_COMPRESSION);
    data.resize(size);

    std::string png("\x89PNG\r\n\x1A\n");
    appendChunk(png, "IHDR", header);
    appendChunk(png, "IDAT", data);
    appendChunk(png, "IEND", "");
    return png;
}

} // namespace skyvane
