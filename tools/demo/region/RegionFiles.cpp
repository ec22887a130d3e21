#include "demo/region/RegionFiles.h"

#include "demo/region/AirportFiles.h"
#include "demo/region/AirspaceFile.h"
#include "demo/region/AirwayFiles.h"
#include "demo/region/GroundFile.h"
#include "demo/region/Masts.h"
#include "demo/region/Text.h"

namespace skyvane::demo {

namespace {

std::string writeObstacles(const std::vector<Mast>& masts) {
    std::string text = "latitude_deg,longitude_deg,altitude_msl_ft,height_agl_ft,lighted,accurate,group,remarks\n";
    for (const Mast& mast : masts) {
        const ChartPosition position = RegionPlane::toPosition(mast.spot);
        const double topMetres = mast.footMetres + mast.heightFeet * MetresPerFoot;
        text += fixed(position.latitude, 6) + "," + fixed(position.longitude, 6) + "," + feet(topMetres) + "," +
                std::to_string(mast.heightFeet) + "," + (mast.isLit ? "1" : "0") + ",1," + (mast.isGroup ? "1" : "0") +
                "," + mast.name + "\n";
    }
    return text;
}

std::vector<GroundFeature> drawGround(const Landscape& landscape, const Sites& sites) {
    std::vector<GroundFeature> features = drawNature(landscape, sites);
    const auto append = [&](std::vector<GroundFeature> more) {
        features.insert(features.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
    };
    append(drawRoutes(landscape, sites));
    for (const Airport& airport : sites.airports)
        append(drawAirport(airport));
    return features;
}

} // namespace

std::map<std::string, std::string> makeRegionFiles(const Landscape& landscape, const Sites& sites) {
    return {{"airports.csv", writeAirports(sites)},
            {"runways.csv", writeRunways(sites)},
            {"airport-frequencies.csv", writeFrequencies(sites)},
            {"navaids.csv", writeNavaids(landscape, sites)},
            {"airspaces.txt", writeAirspaces(sites)},
            {"earth_fix.dat", writeFixes()},
            {"earth_awy.dat", writeAirways()},
            {"obstacles.csv", writeObstacles(raiseMasts(landscape, sites))},
            {"ground.geojson", writeGround(drawGround(landscape, sites))}};
}

} // namespace skyvane::demo
