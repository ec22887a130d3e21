#include "SourceBytes.h"
#include "chartmaker/csv/AirportTable.h"
#include "chartmaker/csv/NavaidTable.h"
#include "chartmaker/obstacles/ObstacleFile.h"

using namespace skyvane;

/// Any bytes as each of the tables that are comma-separated values: the header tells which one they are.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t count) {
    const SourceBytes file(bytes, count);
    StrictSink sink;
    PointIndex points;
    const SourceContext context = sink.context(points);
    RunwayTable runways;
    FrequencyTable frequencies;
    readRunwayTable(file.path(), {}, context, runways);
    readFrequencyTable(file.path(), {}, context, frequencies);
    readAirportTable(file.path(), context, std::move(runways), "runways", std::move(frequencies), "frequencies");
    readNavaidTable(file.path(), context);
    readObstacleFile(file.path(), context);
    return 0;
}
