#include "sensors/RecordSet.h"

#include "core/bytes/ByteReader.h"
#include "sensors/SensorManager.h"

#include <cmath>

namespace skyvane {
namespace {

/// How many numbers at the front of a form must be finite.
struct FiniteFront {
    int doubles;
    int floats;
};

FiniteFront finiteFront(ISensorData::Type type) {
    switch (type) {
    case ISensorData::Attitude:
        return {9, 0};
    case ISensorData::Acceleration:
        return {3, 0};
    case ISensorData::Position:
        return {2, 0};
    case ISensorData::Localizer:
    case ISensorData::Glideslope:
    case ISensorData::AngleOfAttack:
        return {0, 2};
    case ISensorData::GPS:
    case ISensorData::Raw:
    case ISensorData::Traffic:
    case ISensorData::UATUplink:
    case ISensorData::ExtendedHeading:
        return {0, 0};
    default:
        return {1, 0};
    }
}

template <class Number>
bool areFinite(ByteReader& in, int count) {
    for (int i = 0; i < count; ++i)
        if (!std::isfinite(in.little<Number>()))
            return false;
    return true;
}

/// Latitude and longitude; altitude; three dilutions; speed, track and variation.
bool isGpsFinite(const uint8_t* form, size_t length) {
    struct Range {
        size_t offset;
        int count;
    };
    for (const Range range : {Range{20, 2}, Range{44, 1}, Range{56, 3}, Range{96, 3}}) {
        ByteReader in(form + range.offset, length - range.offset);
        if (!areFinite<double>(in, range.count))
            return false;
    }
    return true;
}

bool isFinite(ISensorData::Type type, const uint8_t* form, size_t length) {
    if (type == ISensorData::GPS)
        return isGpsFinite(form, length);
    const FiniteFront front = finiteFront(type);
    ByteReader in(form, length);
    return areFinite<double>(in, front.doubles) && areFinite<float>(in, front.floats);
}

} // namespace

RecordSet::RecordSet(SensorManager& sensors) {
    for (size_t type = 0; type < records_.size(); ++type) {
        records_[type] = sensors.createSensorData(static_cast<ISensorData::Type>(type));
        int length = 0;
        // A default record's form is the shortest of its type.
        if (records_[type])
            records_[type]->serialize(&length);
        leastLengths_[type] = static_cast<size_t>(length);
    }
}

bool RecordSet::take(ISensorData::Type type, const uint8_t* form, size_t length) {
    ISensorData* record = get(type);
    if (!record || length < leastLengths_[static_cast<size_t>(type)] || !isFinite(type, form, length))
        return false;
    record->deserialize(const_cast<uint8_t*>(form), static_cast<int>(length));
    return true;
}

ISensorData* RecordSet::get(ISensorData::Type type) const {
    return ISensorData::isType(type) ? records_[static_cast<size_t>(type)].get() : nullptr;
}

} // namespace skyvane
