#include "sensors/records/LocGs_Data.h"

#include "core/text/Numbers.h"

#include <iostream>

namespace skyvane {

void LocGs_Data::writeForm(ByteWriter& out) const {
    out.little(amplitude90Hz);
    out.little(amplitude150Hz);
}

void LocGs_Data::readForm(ByteReader& in) {
    amplitude90Hz = in.little<float>();
    amplitude150Hz = in.little<float>();
}

void LocGs_Data::Print() {
    std::cout << (localizer_ ? "Localizer: " : "Glideslope: ") << toText(static_cast<double>(amplitude90Hz))
              << " at 90 Hz, " << toText(static_cast<double>(amplitude150Hz)) << " at 150 Hz\n";
}

} // namespace skyvane
