#pragma once

#include "core/bytes/ByteReader.h"
#include "core/bytes/ByteWriter.h"
#include "sensors/records/ISensorData.h"

#include <array>
#include <cstdint>

namespace skyvane {

/// A record whose byte form always has the same length. The form lives in the record, so nothing is ever allocated.
///
/// A record class derives from it and writes and reads its fields in one order, side by side. A form that is too short
/// leaves the record as it was; of one that is too long the front is taken.
template <int Length>
class FixedFormData : public ISensorData {
public:
    static constexpr int FormLength = Length;

    void* serialize(int* length) override {
        ByteWriter out(form_.data(), form_.size());
        writeForm(out);
        *length = Length;
        return form_.data();
    }

    void deserialize(void* bytes, int length) override {
        if (!bytes || length < Length)
            return;
        ByteReader in(bytes, Length);
        readForm(in);
    }

protected:
    virtual void writeForm(ByteWriter& out) const = 0;
    virtual void readForm(ByteReader& in) = 0;

private:
    std::array<uint8_t, Length> form_{};
};

} // namespace skyvane
