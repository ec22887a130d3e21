#pragma once

#include "attitude/math/Matrix3x3.h"
#include "sensors/records/FixedFormData.h"

namespace skyvane {

/// The aircraft's attitude as a rotation from body to world.
/// Byte form, 80 bytes: the matrix row by row at 0, reset kind at 72, time stamp at 76.
class Attitude_Data : public FixedFormData<80> {
public:
    /// What an estimator that replays this record does first.
    enum ResetKind { NoReset, ResetToUnitMatrices, ResetInstallationMatrix, ResetOrientationMatrix };

    Attitude_Data() = default;
    explicit Attitude_Data(const Matrix3x3& attitude, unsigned initialTimeStamp = 0, int initialResetKind = NoReset)
        : matrix(attitude), resetKind(initialResetKind), timeStamp(initialTimeStamp) {}

    Type getType() override { return Attitude; }
    void Print() override;
    /// The words for the reset kind; empty for a number that is none.
    const char* resetKindText() const;

    Matrix3x3 matrix;
    /// A ResetKind; other numbers come from foreign forms and are kept.
    int resetKind = NoReset;
    unsigned timeStamp = 0;

protected:
    void writeForm(ByteWriter& out) const override;
    void readForm(ByteReader& in) override;
};

} // namespace skyvane
