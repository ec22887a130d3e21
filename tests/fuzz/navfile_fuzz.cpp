#include "SourceBytes.h"
#include "chartmaker/xplane/AirwayFile.h"
#include "chartmaker/xplane/FixFile.h"

using namespace skyvane;

/// Any bytes as fixes and as airways between fixes that are known.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t count) {
    const SourceBytes file(bytes, count);
    StrictSink sink;
    PointIndex points;
    points.add("ALBAT", {IChartElement::WAYPOINT, {-28.1, 42.1}, "XS", 0, {}});
    points.add("PUFIN", {IChartElement::WAYPOINT, {-28.7, 41.8}, "XS", 1, {}});
    points.add("MER", {IChartElement::VOR, {-28.6, 42.0}, "", 2, {}});
    readFixFile(file.path(), sink.context(points));
    readAirwayFile(file.path(), sink.context(points));
    return 0;
}
