#pragma once

#include <gdal_priv.h>
#include <string>

namespace skyvane {

/// Degrees, west below east.
struct RasterBounds {
    double west, south, east, north;
};

/// Opens a raster file of one of those formats of GDAL's, a list that null ends; of a zip archive its first file. No
/// network and no virtual formats: a file names nothing but itself. Null when it can't be read.
GDALDatasetUniquePtr openRaster(const std::string& path, const char* const* drivers);

/// What a raster covers. False when it doesn't say where on earth it lies.
bool readRasterBounds(GDALDataset& file, RasterBounds& bounds);

} // namespace skyvane
