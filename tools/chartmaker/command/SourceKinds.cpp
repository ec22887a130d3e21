#include "chartmaker/command/CompileOptions.h"
#include "chartmaker/csv/OurAirports.h"
#include "chartmaker/ground/GroundSource.h"
#include "chartmaker/obstacles/ObstacleFile.h"
#include "chartmaker/openair/OpenAirParser.h"
#include "chartmaker/xplane/AirwayFile.h"
#include "chartmaker/xplane/FixFile.h"

namespace skyvane {

const std::vector<SourceKind> sourceKinds = {
    {"--airports", readOurAirports}, {"--fixes", readFixFile},          {"--airways", readAirwayFile},
    {"--airspaces", readOpenAir},    {"--obstacles", readObstacleFile}, {"--ground", readGround},
};

} // namespace skyvane
