#include "chartmaker/terrain/HeightSources.h"

#include "chartmaker/terrain/RasterFile.h"

#include <cpl_string.h>
#include <gdal_utils.h>

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

/// Further than half a sample of the coarsest tiles: an edge that two cells share touches no neighbour.
constexpr double EdgeDegrees = 0.001;
constexpr double HalfSample = 0.5 / TileSteps;

constexpr const char* drivers[] = {"SRTMHGT", "GTiff", "DTED", "AAIGrid", "USGSDEM", "HFA", "EHdr", nullptr};

} // namespace

struct HeightSources::Files {
    std::vector<GDALDatasetUniquePtr> open;
};

HeightSources::HeightSources() : files_(std::make_unique<Files>()) {
    GDALAllRegister();
}

HeightSources::~HeightSources() = default;

bool HeightSources::add(const std::string& path, std::string& error) {
    GDALDatasetUniquePtr file = openRaster(path, drivers);
    RasterBounds bounds;
    if (!file || file->GetRasterCount() < 1)
        error = path + ": no heights that can be read";
    else if (!readRasterBounds(*file, bounds))
        error = path + ": it doesn't say where on earth it lies";
    if (!error.empty())
        return false;
    const int firstNorth = static_cast<int>(std::ceil(std::max(bounds.south, -90.0) + EdgeDegrees));
    const int lastNorth = static_cast<int>(std::ceil(std::min(bounds.north, 90.0) - EdgeDegrees));
    const int lastWest = static_cast<int>(std::floor(std::min(bounds.east, bounds.west + 360.0) - EdgeDegrees));
    for (int north = firstNorth; north <= lastNorth; ++north)
        for (int west = static_cast<int>(std::floor(bounds.west + EdgeDegrees)); west <= lastWest; ++west)
            cells_.emplace((west % 360 + 360) % 360, north);
    files_->open.push_back(std::move(file));
    return true;
}

bool HeightSources::sample(const Cell& cell, int16_t* heights) const {
    std::fill(heights, heights + TileSamples, NoHeight);
    const double west = cell.first >= 180 ? cell.first - 360 : cell.first;
    CPLStringList options;
    const auto add = [&options](double value) { options.AddString(CPLSPrintf("%.12f", value)); };
    for (const char* word : {"-of", "MEM", "-ot", "Int16", "-r", "bilinear", "-t_srs", "EPSG:4326", "-dstnodata",
                             "-32768", "-ts", "1201", "1201", "-te"})
        options.AddString(word);
    add(west - HalfSample);
    add(cell.second - 1 - HalfSample);
    add(west + 1 + HalfSample);
    add(cell.second + HalfSample);
    std::vector<GDALDatasetH> sources;
    for (const GDALDatasetUniquePtr& file : files_->open)
        sources.push_back(GDALDataset::ToHandle(file.get()));
    GDALWarpAppOptions* parsed = GDALWarpAppOptionsNew(options.List(), nullptr);
    const GDALDatasetUniquePtr tile(GDALDataset::FromHandle(
        GDALWarp("", nullptr, static_cast<int>(sources.size()), sources.data(), parsed, nullptr)));
    GDALWarpAppOptionsFree(parsed);
    const bool read = tile && tile->GetRasterBand(1)->RasterIO(GF_Read, 0, 0, TileSide, TileSide, heights, TileSide,
                                                               TileSide, GDT_Int16, 0, 0) == CE_None;
    return read && std::any_of(heights, heights + TileSamples, [](int16_t height) { return height != NoHeight; });
}

} // namespace skyvane
