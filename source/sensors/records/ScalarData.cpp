#include "sensors/records/ScalarData.h"

#include "core/text/Numbers.h"

#include <iostream>

namespace skyvane {

void ScalarData::writeForm(ByteWriter& out) const {
    out.little(value);
    out.little(static_cast<uint32_t>(timeStamp));
}

void ScalarData::readForm(ByteReader& in) {
    value = in.little<double>();
    timeStamp = in.little<uint32_t>();
}

void ScalarData::Print() {
    std::cout << label() << ": " << toText(value) << " " << unit() << ", " << std::to_string(timeStamp) << " ms\n";
}

} // namespace skyvane
