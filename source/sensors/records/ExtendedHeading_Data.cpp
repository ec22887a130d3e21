#include "sensors/records/ExtendedHeading_Data.h"

#include "core/text/Numbers.h"

#include <iostream>

namespace skyvane {

void ExtendedHeading_Data::writeForm(ByteWriter& out) const {
    out.little(trueHeading);
    out.little(magneticHeading);
    out.little(static_cast<uint32_t>(timeStamp));
}

void ExtendedHeading_Data::readForm(ByteReader& in) {
    trueHeading = in.little<float>();
    magneticHeading = in.little<float>();
    timeStamp = in.little<uint32_t>();
}

void ExtendedHeading_Data::Print() {
    std::cout << "True heading: " << toText(static_cast<double>(trueHeading))
              << " degrees, magnetic heading: " << toText(static_cast<double>(magneticHeading)) << " degrees, "
              << std::to_string(timeStamp) << " ms\n";
}

} // namespace skyvane
