#pragma once

#include <istream>
#include <memory>
#include <ostream>

namespace skyvane {

/// A compressed block of a data file: the uncompressed length as a 32-bit integer, then one zlib stream.
///
/// No claimed length is believed before it is checked: one above this cap is refused, and so is one that the rest of a
/// seekable input can't hold at zlib's best ratio. A stream that gives more or fewer bytes than claimed is refused.
constexpr int longestCompressedBlock = 256 * 1024 * 1024;

/// Level 9; the length isn't negative. 0, or zlib's error of its initialisation; a write that fails shows in the
/// stream.
int compressBufferToFile(std::ostream& out, const unsigned char* data, int length);

/// The block's bytes and their number; null for a length below 1 and for every error. The input is left behind the
/// stream, or behind what was read when there is an error.
std::unique_ptr<unsigned char[]> compressedFileToBuffer(std::istream& in, int& length);

/// The same into a buffer of the caller's, whose size is in `length` at the call; a longer block is refused. The result
/// is the buffer or null.
unsigned char* compressedFileToBuffer(std::istream& in, int& length, unsigned char* buffer);

} // namespace skyvane
