#pragma once

#include "core/geometry/EngineMath.h"

#include <array>

namespace skyvane {

/// A rotation, row-major 3 by 3. World frame: x east, y up, z north. Columns are the body's right, up and forward
/// vectors in the world frame. Default-made it is the unit matrix.
class Matrix3x3 {
public:
    using Vector = irr::core::vector3d<double>;

    Matrix3x3() = default;
    /// Columns (up x forward, up, forward).
    Matrix3x3(const Vector& up, const Vector& forward);

    double& operator()(int row, int column) { return m_[static_cast<size_t>(row * 3 + column)]; }
    double operator()(int row, int column) const { return m_[static_cast<size_t>(row * 3 + column)]; }
    const double* data() const { return m_.data(); }
    double* data() { return m_.data(); }

    Vector getUpVector() const { return column(1); }
    Vector getForwardVector() const { return column(2); }
    Vector column(int index) const;

    Matrix3x3 operator*(const Matrix3x3& right) const;
    Vector operator*(const Vector& v) const;
    Matrix3x3 transposed() const;

private:
    std::array<double, 9> m_{{1, 0, 0, 0, 1, 0, 0, 0, 1}};
};

/// Rotations by an angle in radians. Yaw turns north towards east for positive angles.
Matrix3x3 createYawMatrix(double radians);
/// Lowers the nose for positive angles: body forward gets a negative y.
Matrix3x3 createPitchMatrix(double radians);
/// Raises the right wing for positive angles.
Matrix3x3 createRollMatrix(double radians);

/// m turned so that its forward vector has no x.
Matrix3x3 removeHeadingFromMatrix(const Matrix3x3& m);

} // namespace skyvane
