#pragma once

#include <string>

namespace skyvane {

/// Whether the blocks of an OpenStreetMap extract (.osm.pbf) fill the file to its end. A file that was cut while it was
/// downloaded ends inside of one, which GDAL passes over without a word. Reads the heads of the blocks alone.
bool isWholePbf(const std::string& path);

} // namespace skyvane
