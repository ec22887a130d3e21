#include "chartmaker/terrain/ChartRasters.h"

#include "chart/areas/AreaGrid.h"
#include "chart/areas/AreaTree.h"
#include "chartmaker/terrain/RasterFile.h"

#include <cpl_string.h>
#include <cpl_vsi.h>
#include <gdal_utils.h>

#include <algorithm>

namespace skyvane {
namespace {

constexpr const char* drivers[] = {"GTiff", "PNG", "JPEG", "GPKG", "HFA", "PDF", nullptr};
constexpr size_t Pixels = size_t{BackgroundTilePixels} * BackgroundTilePixels;
constexpr int Channels = 4;
constexpr const char* MemoryFile = "/vsimem/skyvane-tile.png";

/// Red, green, blue and alpha, one after the other for each pixel.
using Picture = std::vector<unsigned char>;

bool transfer(GDALDataset& data, GDALRWFlag direction, Picture& picture) {
    return data.RasterIO(direction, 0, 0, BackgroundTilePixels, BackgroundTilePixels, picture.data(),
                         BackgroundTilePixels, BackgroundTilePixels, GDT_Byte, Channels, nullptr, Channels,
                         Channels * BackgroundTilePixels, 1, nullptr) == CE_None;
}

/// As bytes of red, green and blue, and alpha where the chart has it.
GDALDatasetUniquePtr inColours(GDALDataset& chart) {
    CPLStringList options;
    for (const char* word : {"-of", "VRT", "-ot", "Byte"})
        options.AddString(word);
    if (chart.GetRasterBand(1)->GetColorTable()) {
        options.AddString("-expand");
        options.AddString("rgba");
    } else if (chart.GetRasterCount() < 3) {
        for (const char* word : {"-b", "1", "-b", "1", "-b", "1"})
            options.AddString(word);
    }
    GDALTranslateOptions* parsed = GDALTranslateOptionsNew(options.List(), nullptr);
    GDALDatasetUniquePtr result(
        GDALDataset::FromHandle(GDALTranslate("", GDALDataset::ToHandle(&chart), parsed, nullptr)));
    GDALTranslateOptionsFree(parsed);
    return result;
}

GDALDatasetUniquePtr warp(std::vector<GDALDatasetH> charts, const IArea& area) {
    const double turn = area.getNWEdge().longitude >= 180.0 ? 360.0 : 0.0;
    CPLStringList options;
    for (const char* word : {"-of", "MEM", "-ot", "Byte", "-r", "bilinear", "-t_srs", "EPSG:4326", "-dstalpha", "-ts",
                             "512", "512", "-te"})
        options.AddString(word);
    for (const double edge : {area.getNWEdge().longitude - turn, area.getSEEdge().latitude,
                              area.getSEEdge().longitude - turn, area.getNWEdge().latitude})
        options.AddString(CPLSPrintf("%.12f", edge));
    GDALWarpAppOptions* parsed = GDALWarpAppOptionsNew(options.List(), nullptr);
    GDALDatasetUniquePtr tile(GDALDataset::FromHandle(
        GDALWarp("", nullptr, static_cast<int>(charts.size()), charts.data(), parsed, nullptr)));
    GDALWarpAppOptionsFree(parsed);
    return tile && tile->GetRasterCount() == Channels ? std::move(tile) : nullptr;
}

/// Where the picture is transparent, the one of the file shows.
void lay(Picture& picture, const std::string& below) {
    constexpr const char* png[] = {"PNG", nullptr};
    const GDALDatasetUniquePtr file = openRaster(below, png);
    Picture old(picture.size());
    if (!file || file->GetRasterCount() != Channels || file->GetRasterXSize() != BackgroundTilePixels ||
        file->GetRasterYSize() != BackgroundTilePixels || !transfer(*file, GF_Read, old))
        return;
    for (size_t pixel = 0; pixel < picture.size(); pixel += Channels)
        if (picture[pixel + Channels - 1] == 0)
            std::copy_n(old.begin() + static_cast<long>(pixel), Channels, picture.begin() + static_cast<long>(pixel));
}

std::string toPng(GDALDataset& tile) {
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("PNG");
    GDALDatasetUniquePtr file(driver ? driver->CreateCopy(MemoryFile, &tile, FALSE, nullptr, nullptr, nullptr)
                                     : nullptr);
    const bool made = file != nullptr;
    file.reset();
    vsi_l_offset size = 0;
    GByte* bytes = made ? VSIGetMemFileBuffer(MemoryFile, &size, TRUE) : nullptr;
    const std::string png(reinterpret_cast<const char*>(bytes), bytes ? size : 0);
    VSIFree(bytes);
    return png;
}

} // namespace

struct ChartRasters::Charts {
    std::vector<IArea*> table = std::vector<IArea*>(AreaCount);
    std::unique_ptr<AreaArena> arena = createWorldWideAreaTree(false, table.data());
    std::vector<GDALDatasetUniquePtr> files;
    std::vector<GDALDatasetUniquePtr> colours; ///< They read from the files.
};

ChartRasters::ChartRasters() {
    GDALAllRegister();
    CPLSetConfigOption("GDAL_PAM_ENABLED", "NO"); // no side files
    charts_ = std::make_unique<Charts>();
}

ChartRasters::~ChartRasters() = default;

bool ChartRasters::add(const std::string& path, std::string& error) {
    GDALDatasetUniquePtr file = openRaster(path, drivers);
    GDALDatasetUniquePtr colours = file && file->GetRasterCount() > 0 ? inColours(*file) : nullptr;
    RasterBounds bounds;
    if (!colours)
        error = path + ": no chart that can be read";
    else if (!readRasterBounds(*file, bounds))
        error = path + ": it doesn't say where on earth it lies";
    if (!error.empty())
        return false;
    AreaGridView({bounds.west, bounds.north}, {bounds.east, bounds.south}).forEachLeaf([this](int index) {
        areas_.insert(index);
    });
    charts_->files.push_back(std::move(file));
    charts_->colours.push_back(std::move(colours));
    return true;
}

std::string ChartRasters::makeTile(int area, const std::string& below) const {
    std::vector<GDALDatasetH> charts;
    for (const GDALDatasetUniquePtr& chart : charts_->colours)
        charts.push_back(GDALDataset::ToHandle(chart.get()));
    const GDALDatasetUniquePtr tile = warp(std::move(charts), *charts_->table[static_cast<size_t>(area)]);
    Picture picture(Pixels * Channels);
    if (!tile || !transfer(*tile, GF_Read, picture))
        return {};
    bool isEmpty = true;
    for (size_t alpha = Channels - 1; alpha < picture.size(); alpha += Channels)
        isEmpty = isEmpty && picture[alpha] == 0;
    if (isEmpty)
        return {};
    lay(picture, below);
    return transfer(*tile, GF_Write, picture) ? toPng(*tile) : std::string();
}

} // namespace skyvane
