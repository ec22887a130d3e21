#include "sensors/records/Acceleration_Data.h"

#include "core/text/Numbers.h"

#include <iostream>

namespace skyvane {

void Acceleration_Data::writeForm(ByteWriter& out) const {
    for (const double component : {x, y, z})
        out.little(component);
    out.little(static_cast<uint32_t>(timeStamp));
}

void Acceleration_Data::readForm(ByteReader& in) {
    for (double* component : {&x, &y, &z})
        *component = in.little<double>();
    timeStamp = in.little<uint32_t>();
}

void Acceleration_Data::Print() {
    std::cout << "Acceleration: " << toText(x) << ", " << toText(y) << ", " << toText(z) << " m/s^2, "
              << std::to_string(timeStamp) << " ms\n";
}

} // namespace skyvane
