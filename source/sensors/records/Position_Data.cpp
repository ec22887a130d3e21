#include "sensors/records/Position_Data.h"

#include "core/text/Numbers.h"

#include <iostream>

namespace skyvane {

void Position_Data::writeForm(ByteWriter& out) const {
    out.little(longitude);
    out.little(latitude);
    out.little(static_cast<uint32_t>(timeStamp));
}

void Position_Data::readForm(ByteReader& in) {
    longitude = in.little<double>();
    latitude = in.little<double>();
    timeStamp = in.little<uint32_t>();
}

void Position_Data::Print() {
    std::cout << "Position: longitude " << toText(longitude) << ", latitude " << toText(latitude) << ", "
              << std::to_string(timeStamp) << " ms\n";
}

} // namespace skyvane
