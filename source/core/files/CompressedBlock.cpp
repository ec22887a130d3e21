#include "core/files/CompressedBlock.h"

#include "core/bytes/ByteReader.h"
#include "core/bytes/ByteWriter.h"

#include <cstdint>
#include <new>
#include <zlib.h>

namespace skyvane {

namespace {

constexpr unsigned chunkSize = 0x40000;
constexpr int64_t bestRatio = 1032; // deflate codes at most 258 bytes with 2 bits

// The claimed length, 0 when there is none or it can't be true.
int readLength(std::istream& in) {
    uint8_t bytes[4];
    if (!in.read(reinterpret_cast<char*>(bytes), sizeof bytes))
        return 0;
    const int32_t length = ByteReader(bytes, sizeof bytes).little<int32_t>();
    if (length < 1 || length > longestCompressedBlock)
        return 0;
    const std::istream::pos_type here = in.tellg();
    if (here == std::istream::pos_type(-1)) {
        in.clear();
        return length;
    }
    in.seekg(0, std::ios::end);
    const int64_t rest = in.tellg() - here;
    in.seekg(here);
    return length / bestRatio <= rest ? length : 0;
}

// Inflates exactly `length` bytes; `buffer` has room for them.
bool inflateBlock(std::istream& in, int length, unsigned char* buffer) {
    z_stream stream = {};
    if (inflateInit(&stream) != Z_OK)
        return false;
    stream.next_out = buffer;
    stream.avail_out = static_cast<uInt>(length);
    unsigned char chunk[chunkSize];
    int state = Z_OK;
    while (state == Z_OK) {
        if (stream.avail_in == 0) {
            in.read(reinterpret_cast<char*>(chunk), chunkSize);
            stream.next_in = chunk;
            stream.avail_in = static_cast<uInt>(in.gcount());
        }
        state = inflate(&stream, Z_NO_FLUSH);
    }
    inflateEnd(&stream);
    if (state != Z_STREAM_END || stream.avail_out != 0)
        return false;
    in.clear();
    in.seekg(-static_cast<std::streamoff>(stream.avail_in), std::ios::cur);
    return true;
}

} // namespace

int compressBufferToFile(std::ostream& out, const unsigned char* data, int length) {
    z_stream stream = {};
    const int error = deflateInit(&stream, 9);
    if (error != Z_OK)
        return error;
    uint8_t head[4];
    ByteWriter(head, sizeof head).little<int32_t>(length);
    out.write(reinterpret_cast<const char*>(head), sizeof head);
    stream.next_in = const_cast<unsigned char*>(data);
    stream.avail_in = static_cast<uInt>(length);
    unsigned char chunk[chunkSize];
    int state = Z_OK;
    while (state == Z_OK) {
        stream.next_out = chunk;
        stream.avail_out = chunkSize;
        state = deflate(&stream, Z_FINISH);
        out.write(reinterpret_cast<const char*>(chunk), chunkSize - stream.avail_out);
    }
    deflateEnd(&stream);
    return 0;
}

std::unique_ptr<unsigned char[]> compressedFileToBuffer(std::istream& in, int& length) {
    length = readLength(in);
    if (length == 0)
        return nullptr;
    std::unique_ptr<unsigned char[]> buffer(new (std::nothrow) unsigned char[static_cast<size_t>(length)]);
    if (buffer && !inflateBlock(in, length, buffer.get()))
        buffer.reset();
    return buffer;
}

unsigned char* compressedFileToBuffer(std::istream& in, int& length, unsigned char* buffer) {
    const int room = length;
    length = readLength(in);
    const bool fits = length > 0 && length <= room;
    return fits && inflateBlock(in, length, buffer) ? buffer : nullptr;
}

} // namespace skyvane
