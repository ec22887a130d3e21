#include "sensors/records/Attitude_Data.h"

#include "core/text/Numbers.h"
#include "sensors/records/MatrixForm.h"

#include <iostream>

namespace skyvane {

void Attitude_Data::writeForm(ByteWriter& out) const {
    writeMatrix(out, matrix);
    out.little(static_cast<int32_t>(resetKind));
    out.little(static_cast<uint32_t>(timeStamp));
}

void Attitude_Data::readForm(ByteReader& in) {
    readMatrix(in, matrix);
    resetKind = in.little<int32_t>();
    timeStamp = in.little<uint32_t>();
}

const char* Attitude_Data::resetKindText() const {
    static const char* const texts[] = {"No Reset", "Reset to Unit Matrices", "Reset Installation Matrix",
                                        "Reset Orientation Matrix"};
    return resetKind >= NoReset && resetKind <= ResetOrientationMatrix ? texts[resetKind] : "";
}

void Attitude_Data::Print() {
    std::cout << "Attitude, " << std::to_string(timeStamp) << " ms, " << resetKindText() << "\n";
    for (int row = 0; row < 3; ++row)
        std::cout << toText(matrix(row, 0)) << " " << toText(matrix(row, 1)) << " " << toText(matrix(row, 2)) << "\n";
}

} // namespace skyvane
