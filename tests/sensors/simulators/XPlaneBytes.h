#pragma once

#include "core/bytes/ByteWriter.h"

#include <array>
#include <string>

namespace skyvane {

/// A datagram of X-Plane, group by group: XPlaneBytes().group(17, {pitch, roll, heading}).text().
class XPlaneBytes {
public:
    XPlaneBytes() { text_.assign("DATA*", 5); }

    XPlaneBytes& group(int index, std::array<float, 8> values) {
        char bytes[36];
        ByteWriter out(bytes, sizeof(bytes));
        out.little<int32_t>(index);
        for (const float value : values)
            out.little(value);
        text_.append(bytes, sizeof(bytes));
        return *this;
    }
    const std::string& text() const { return text_; }

private:
    std::string text_;
};

} // namespace skyvane
