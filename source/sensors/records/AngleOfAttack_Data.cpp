#include "sensors/records/AngleOfAttack_Data.h"

#include "core/text/Numbers.h"

#include <iostream>

namespace skyvane {

void AngleOfAttack_Data::writeForm(ByteWriter& out) const {
    out.little(angle);
    out.little(maximum);
    out.little(static_cast<uint32_t>(timeStamp));
    out.little(static_cast<uint8_t>(inParts));
}

void AngleOfAttack_Data::readForm(ByteReader& in) {
    angle = in.little<float>();
    maximum = in.little<float>();
    timeStamp = in.little<uint32_t>();
    inParts = in.little<uint8_t>();
}

void AngleOfAttack_Data::Print() {
    std::cout << "Angle of attack: " << toText(static_cast<double>(angle)) << " of "
              << toText(static_cast<double>(maximum)) << (inParts ? " parts, " : " degrees, ")
              << std::to_string(timeStamp) << " ms\n";
}

} // namespace skyvane
