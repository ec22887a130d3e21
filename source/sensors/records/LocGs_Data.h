#pragma once

#include "sensors/records/FixedFormData.h"

namespace skyvane {

/// The two tones of a localizer or glideslope receiver. It has no time stamp.
/// Byte form, 8 bytes: 90 Hz at 0, 150 Hz at 4.
class LocGs_Data : public FixedFormData<8> {
public:
    explicit LocGs_Data(bool isLocalizer) : LocGs_Data(0.0f, 0.0f, isLocalizer) {}
    LocGs_Data(float initial90Hz, float initial150Hz, bool isLocalizer)
        : amplitude90Hz(initial90Hz), amplitude150Hz(initial150Hz), localizer_(isLocalizer) {}

    Type getType() override { return localizer_ ? Localizer : Glideslope; }
    void Print() override;

    float amplitude90Hz;
    float amplitude150Hz;

protected:
    void writeForm(ByteWriter& out) const override;
    void readForm(ByteReader& in) override;

private:
    bool localizer_;
};

} // namespace skyvane
