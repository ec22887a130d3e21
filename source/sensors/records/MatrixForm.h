#pragma once

#include "attitude/math/Matrix3x3.h"
#include "core/bytes/ByteReader.h"
#include "core/bytes/ByteWriter.h"

namespace skyvane {

/// The byte form of a rotation within records: nine doubles, row by row, 72 bytes.
inline void writeMatrix(ByteWriter& out, const Matrix3x3& matrix) {
    for (int i = 0; i < 9; ++i)
        out.little(matrix.data()[i]);
}

inline void readMatrix(ByteReader& in, Matrix3x3& matrix) {
    for (int i = 0; i < 9; ++i)
        matrix.data()[i] = in.little<double>();
}

} // namespace skyvane
