#include "chartmaker/terrain/RasterFile.h"

#include <cpl_string.h>
#include <cpl_vsi.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace skyvane {
namespace {

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// The first file of a zip archive, or the path itself.
std::string nameInside(const std::string& path) {
    if (!endsWith(path, ".zip"))
        return path;
    const std::string archive = "/vsizip/" + path;
    const CPLStringList names(VSIReadDir(archive.c_str()));
    return names.size() > 0 ? archive + "/" + names[0] : archive;
}

/// A file may claim any place, and who walks its cells would never end. Rasters of the whole earth reach a little
/// beyond its edges. False for numbers that are none.
bool isOnEarth(const RasterBounds& bounds) {
    return bounds.west >= -361.0 && bounds.west < bounds.east && bounds.east <= 721.0 && bounds.south >= -91.0 &&
           bounds.south < bounds.north && bounds.north <= 91.0;
}

} // namespace

GDALDatasetUniquePtr openRaster(const std::string& path, const char* const* drivers) {
    return GDALDatasetUniquePtr(
        GDALDataset::Open(nameInside(path).c_str(), GDAL_OF_RASTER | GDAL_OF_READONLY, drivers, nullptr, nullptr));
}

bool readRasterBounds(GDALDataset& file, RasterBounds& bounds) {
    double transform[6];
    const OGRSpatialReference* from = file.GetSpatialRef();
    if (!from || file.GetGeoTransform(transform) != CE_None)
        return false;
    const double columns = file.GetRasterXSize(), rows = file.GetRasterYSize();
    double xs[2] = {1e300, -1e300}, ys[2] = {1e300, -1e300};
    for (int corner = 0; corner < 4; ++corner) {
        const double i = corner & 1 ? columns : 0, j = corner & 2 ? rows : 0;
        const double x = transform[0] + i * transform[1] + j * transform[2];
        const double y = transform[3] + i * transform[4] + j * transform[5];
        xs[0] = std::min(xs[0], x), xs[1] = std::max(xs[1], x);
        ys[0] = std::min(ys[0], y), ys[1] = std::max(ys[1], y);
    }
    OGRSpatialReference source(*from), to;
    to.SetWellKnownGeogCS("WGS84");
    for (OGRSpatialReference* reference : {&source, &to})
        reference->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    const std::unique_ptr<OGRCoordinateTransformation> way(OGRCreateCoordinateTransformation(&source, &to));
    return way &&
           way->TransformBounds(xs[0], ys[0], xs[1], ys[1], &bounds.west, &bounds.south, &bounds.east, &bounds.north,
                                21) &&
           isOnEarth(bounds);
}

} // namespace skyvane
