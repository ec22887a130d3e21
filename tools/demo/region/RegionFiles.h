#pragma once

#include <map>
#include <string>

namespace skyvane::demo {

class Landscape;
struct Sites;

/// The fictional region as sources of charts, by file name:
///
///     airports.csv, runways.csv, airport-frequencies.csv, navaids.csv    as OurAirports has them
///     airspaces.txt                                                      OpenAir
///     earth_fix.dat, earth_awy.dat                                       as X-Plane has them
///     obstacles.csv                                                      the obstacle table of chartmaker
///     ground.geojson                                                     tagged as OpenStreetMap does
///
/// The same seed of the landscape, settled, gives the same bytes. Every name says that it is fictional, and the files
/// that they aren't for navigation. Takes some seconds.
std::map<std::string, std::string> makeRegionFiles(const Landscape& landscape, const Sites& sites);

} // namespace skyvane::demo
