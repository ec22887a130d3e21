#pragma once

#include "core/bytes/ByteWriter.h"

#include <array>
#include <string>

namespace skyvane {

/// A datagram of FlightGear by offsets: FlightGearBytes().number(8, yaw).whole(128, hour).text(). At first all of it is
/// level flight at 42.5 N 1.25 E.
class FlightGearBytes {
public:
    FlightGearBytes() : text_(168, '\0') {
        number(64, 9.81).number(72, 45).number(80, 90).number(88, 1500).number(96, 42.5).number(104, 1.25);
        number(120, 15).number(152, 1000).number(160, 95);
        whole(128, 12).whole(140, 29).whole(144, 2).whole(148, 2024);
    }
    FlightGearBytes& number(size_t offset, double value) { return put(offset, value); }
    FlightGearBytes& whole(size_t offset, int32_t value) { return put(offset, value); }
    const std::string& text() const { return text_; }

private:
    template <class T>
    FlightGearBytes& put(size_t offset, T value) {
        ByteWriter out(&text_[offset], text_.size() - offset);
        out.big(value);
        return *this;
    }

    std::string text_;
};

} // namespace skyvane
