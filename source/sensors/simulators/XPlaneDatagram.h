#pragma once

#include "core/bytes/ByteReader.h"

#include <array>

namespace skyvane {

/// A datagram of X-Plane's data output, "DATA": 5 bytes of header, then groups of 36 bytes, little-endian: a 32-bit
/// index and eight floats.
///
///     XPlaneDatagram datagram(bytes, length);
///     for (XPlaneDatagram::Group group; datagram.next(group);) take(group);
///
/// The bytes outlive it. Any length may come; one that isn't a header and whole groups holds none.
class XPlaneDatagram {
public:
    static constexpr size_t HeaderBytes = 5;
    static constexpr size_t GroupBytes = 36;

    struct Group {
        int index = 0;
        std::array<float, 8> values{};
    };

    XPlaneDatagram(const void* bytes, size_t length);

    /// True when the length is one of a header and at least one whole group.
    bool isTaken() const { return taken_; }
    /// The groups in order; false after the last.
    bool next(Group& group);

private:
    bool taken_;
    ByteReader in_;
};

} // namespace skyvane
