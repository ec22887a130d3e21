#include "attitude/math/Matrix3x3.h"

#include <cmath>

namespace skyvane {

using Vector = Matrix3x3::Vector;

Matrix3x3::Matrix3x3(const Vector& up, const Vector& forward) {
    const Vector columns[3] = {up.crossProduct(forward), up, forward};
    for (int c = 0; c < 3; ++c) {
        (*this)(0, c) = columns[c].X;
        (*this)(1, c) = columns[c].Y;
        (*this)(2, c) = columns[c].Z;
    }
}

Vector Matrix3x3::column(int index) const {
    return Vector((*this)(0, index), (*this)(1, index), (*this)(2, index));
}

Matrix3x3 Matrix3x3::operator*(const Matrix3x3& right) const {
    Matrix3x3 product;
    for (int c = 0; c < 3; ++c) {
        const Vector image = *this * right.column(c);
        product(0, c) = image.X;
        product(1, c) = image.Y;
        product(2, c) = image.Z;
    }
    return product;
}

Vector Matrix3x3::operator*(const Vector& v) const {
    const auto row = [&](int r) { return (*this)(r, 0) * v.X + (*this)(r, 1) * v.Y + (*this)(r, 2) * v.Z; };
    return Vector(row(0), row(1), row(2));
}

Matrix3x3 Matrix3x3::transposed() const {
    Matrix3x3 result;
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 3; ++c)
            result(r, c) = (*this)(c, r);
    return result;
}

namespace {

/// A rotation that mixes the axes `a` and `b`: cosines on their diagonal, -sin in row a, sin in row b.
Matrix3x3 createRotation(int a, int b, double radians) {
    const double sine = std::sin(radians);
    Matrix3x3 m;
    m(a, a) = m(b, b) = std::cos(radians);
    m(a, b) = -sine;
    m(b, a) = sine;
    return m;
}

} // namespace

Matrix3x3 createYawMatrix(double radians) {
    return createRotation(2, 0, radians);
}

Matrix3x3 createPitchMatrix(double radians) {
    return createRotation(1, 2, radians);
}

Matrix3x3 createRollMatrix(double radians) {
    return createRotation(0, 1, radians);
}

Matrix3x3 removeHeadingFromMatrix(const Matrix3x3& m) {
    const Vector forward = m.getForwardVector();
    return createYawMatrix(-std::atan2(forward.X, forward.Z)) * m;
}

} // namespace skyvane
