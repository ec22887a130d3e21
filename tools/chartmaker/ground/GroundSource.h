#pragma once

#include "chartmaker/compile/SourceKind.h"

#include <string>

namespace skyvane {

/// Reads ground geometry: roads, railways, rivers, lakes, coasts, borders, built-up areas, taxiways and aprons.
///
/// Takes what GDAL reads of OpenStreetMap extracts (.osm, .osm.pbf), GeoJSON, shapefiles and GeoPackages, packed by
/// gzip or as they are, in any coordinate system. groundRules.txt tells what becomes of a feature; the others are
/// passed over. Lines of a kind that meet are joined, all is simplified to the context's tolerance (taxiways, aprons
/// and buildings to at most a metre), areas smaller than ten by ten of it are left out, and what reaches over the edge
/// of a region that is a box is cut there.
bool readGround(const std::string& path, const SourceContext& context);

/// What `context.groundToleranceMetres` is unless the command line says so.
constexpr double DefaultGroundToleranceMetres = 20.0;

} // namespace skyvane
