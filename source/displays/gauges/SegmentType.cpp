#include "displays/gauges/SegmentType.h"

#include <cstddef>
#include <iterator>

namespace skyvane {

namespace {

struct Row {
    const char* name;
    const wchar_t* label;
    const wchar_t* portraitLabel;
    const wchar_t* previewLabel;
    const wchar_t* sample;
};

const Row rows[] = {
    {"HEADING", L"Track", L"Track", L"Heading:", L"888\u00B0"},
    {"BEARING", L"Bearing", L"Bearing", L"Bearing:", L"888\u00B0"},
    {"ETE", L"ETE", L"ETE", L"ETE:", L"88:88:88"},
    {"ETA", L"ETA", L"ETA", L"ETA:", L"88:88:88"},
    {"DISTANCE", L"Dist", L"Dist", L"Dist:", L"8888"},
    {"NEXTWPT", L"Next", L"Next", L"NextWPT:", nullptr},
    {"GROUNDSPEED", L"GS:", L"GS:", L"GS: (Kts)", L"888"},
    {"ALTITUDE", L"Alt MSL:", L"MSL:", L"Alt: (MSL)", L"88888"},
    {"ALTITUDE_AGL", L"Alt AGL:", L"AGL:", L"Alt AGL:", L"88888"},
    {"UTC", L"UTC", L"UTC", L"UTC:", L"88:88"},
    {"DATE", L"Date", L"Date", L"Date:", L"88/88/8888"},
    {"POSITION", L"Pos", L"Pos", L"Pos:", L"88\u00B0 88.888' N\n888\u00B0 88.888' W"},
    {"SATCOUNT", L"#Sats", L"#Sats", L"#Sats", L"88"},
    {"PRESSURE_INSIDE", L"P [hPa]", L"P [hPa]", L"P [hPa]", L"8888"},
    {"PRESSURE_OUTSIDE", L"P [hPa]", L"P [hPa]", L"P [hPa]", L"8888"},
    {"TEMPERATURE_INSIDE", L"Temp", L"Temp", L"Temp", L"888"},
    {"TEMPERATURE_OUTSIDE", L"Temp", L"Temp", L"Temp", L"888"},
    {"PRESSURE_ALTITUDE_INSIDE", L"P.Alt", L"P.Alt", L"P.Alt", L"88888"},
};
static_assert(std::size(rows) == segmentTypeCount, "a row for each type, in their order");

const Row& rowOf(SegmentType type) {
    return rows[static_cast<size_t>(type)];
}

} // namespace

SegmentType parseSegmentType(const std::string& name) {
    for (int i = 0; i < segmentTypeCount; ++i)
        if (name == rows[i].name)
            return static_cast<SegmentType>(i);
    return SegmentType::HEADING;
}

const char* nameOf(SegmentType type) {
    return rowOf(type).name;
}

std::string segmentTypeList() {
    std::string list;
    for (const Row& row : rows)
        list += (list.empty() ? "" : ";") + std::string(row.name);
    return list;
}

const wchar_t* segmentLabel(SegmentType type, bool portrait) {
    return portrait ? rowOf(type).portraitLabel : rowOf(type).label;
}

const wchar_t* segmentPreviewLabel(SegmentType type) {
    return rowOf(type).previewLabel;
}

const wchar_t* segmentSample(SegmentType type) {
    return rowOf(type).sample;
}

} // namespace skyvane
