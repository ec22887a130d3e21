#pragma once

#include "sensors/records/FixedFormData.h"

namespace skyvane {

/// A record of one number and its time stamp. Byte form, 12 bytes: value at 0, time stamp at 8.
class ScalarData : public FixedFormData<12> {
public:
    ScalarData(double initialValue, unsigned initialTimeStamp) : value(initialValue), timeStamp(initialTimeStamp) {}

    void Print() override;

    double value;
    /// Milliseconds on the clock of its source.
    unsigned timeStamp;

protected:
    /// What Print writes before the value, and its unit after it.
    virtual const char* label() const = 0;
    virtual const char* unit() const = 0;

    void writeForm(ByteWriter& out) const override;
    void readForm(ByteReader& in) override;
};

} // namespace skyvane
