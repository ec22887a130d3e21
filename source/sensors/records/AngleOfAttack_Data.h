#pragma once

#include "sensors/records/FixedFormData.h"

namespace skyvane {

/// The angle of attack and its maximum.
/// Byte form, 13 bytes: angle at 0, maximum at 4, time stamp at 8, the low byte of the unit flag at 12.
class AngleOfAttack_Data : public FixedFormData<13> {
public:
    AngleOfAttack_Data() = default;
    AngleOfAttack_Data(float initialAngle, float initialMaximum, bool isInParts, unsigned initialTimeStamp)
        : angle(initialAngle), maximum(initialMaximum), timeStamp(initialTimeStamp), inParts(isInParts ? 1 : 0) {}

    Type getType() override { return AngleOfAttack; }
    void Print() override;

    float angle = 0.0f;
    float maximum = 1.0f;
    unsigned timeStamp = 0;
    /// When set, angle and maximum are in parts of a scale, otherwise in degrees. 0 to 255 survive the byte form.
    unsigned inParts = 1;

protected:
    void writeForm(ByteWriter& out) const override;
    void readForm(ByteReader& in) override;
};

} // namespace skyvane
