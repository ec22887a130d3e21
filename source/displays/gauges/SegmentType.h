#pragma once

#include <string>

namespace skyvane {

/// What a value field shows. The names are stored.
enum class SegmentType {
    HEADING,
    BEARING,
    ETE,
    ETA,
    DISTANCE,
    NEXTWPT,
    GROUNDSPEED,
    ALTITUDE,
    ALTITUDE_AGL,
    UTC,
    DATE,
    POSITION,
    SATCOUNT,
    PRESSURE_INSIDE,
    PRESSURE_OUTSIDE,
    TEMPERATURE_INSIDE,
    TEMPERATURE_OUTSIDE,
    PRESSURE_ALTITUDE_INSIDE
};

constexpr int segmentTypeCount = 18;

/// The first type for a name that is none.
SegmentType parseSegmentType(const std::string& name);
const char* nameOf(SegmentType type);
/// All names in the order of the types, joined by ";".
std::string segmentTypeList();

/// What stands over the value.
const wchar_t* segmentLabel(SegmentType type, bool portrait);
const wchar_t* segmentPreviewLabel(SegmentType type);
/// A value of the usual greatest size, which decides the size of the figures; null where each text decides its own.
/// The same pointer for the same type.
const wchar_t* segmentSample(SegmentType type);

} // namespace skyvane
