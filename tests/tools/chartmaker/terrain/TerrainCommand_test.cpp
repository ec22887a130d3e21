#include "chart/areas/AreaGrid.h"
#include "sensors/TemporaryFolder.h"
#include "terrain/files/BackgroundList.h"
#include "terrain/files/TerrainIndexFile.h"
#include "terrain/files/TerrainTile.h"
#include "terrain/tree/TerrainStore.h"
#include "tools/chartmaker/ChartMakerRun.h"

#include <fstream>
#include <gdal_priv.h>
#include <ogr_spatialref.h>

namespace skyvane {
namespace {

/// An SRTM file: rows from the north, big-endian.
template <class HeightOf>
void writeSrtm(const std::string& path, int side, HeightOf heightOf) {
    std::string bytes;
    for (int row = 0; row < side; ++row)
        for (int column = 0; column < side; ++column) {
            const auto height = static_cast<uint16_t>(heightOf(row, column));
            bytes += {static_cast<char>(height >> 8), static_cast<char>(height & 0xff)};
        }
    std::ofstream(path, std::ios::binary) << bytes;
}

std::vector<int16_t> loadCell(const std::string& folder, double west, double north, int& id) {
    TerrainStore tree(folder, 1);
    id = findFittingNode(tree.getRoot(), {west, north}, {west + 1, north - 1})->getId();
    std::vector<int16_t> heights(TileSamples);
    if (loadTile(getTilePath(folder, id), heights.data()) != TileLoad::Loaded)
        heights.clear();
    return heights;
}

TEST(ChartMakerTerrain, makesTilesOfBothResolutions) {
    const TemporaryFolder folder;
    const std::string coarse = folder.path("N10W020.hgt"), fine = folder.path("S01E000.hgt");
    writeSrtm(coarse, 1201, [](int row, int column) { return row == 7 && column == 9 ? -32768 : row - column; });
    writeSrtm(fine, 3601, [](int row, int) { return row; });
    folder.write("bad.hgt", "short");
    const std::string out = folder.path("Terrain");
    const ChartMakerRun run({"terrain", "--out", out, "--name", "Test", coarse, fine, folder.path("bad.hgt")});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.error.find("bad.hgt: no heights"), std::string::npos) << run.error;
    int west = 0, equator = 0;
    const std::vector<int16_t> first = loadCell(out + "/", 340, 11, west), second = loadCell(out + "/", 0, 0, equator);
    ASSERT_FALSE(first.empty() || second.empty());
    for (int row = 0; row < TileSide; row += 5)
        for (int column = 0; column < TileSide; column += 7)
            ASSERT_EQ(first[static_cast<size_t>(row * TileSide + column)], row - column);
    EXPECT_EQ(first[7 * TileSide + 9], NoHeight) << "holes stay";
    for (int row = 1; row < TileSteps; ++row)
        ASSERT_EQ(second[static_cast<size_t>(row * TileSide + 600)], 3 * row);
    EXPECT_EQ(parseTIFile(out + "/Test.ti", nullptr, nullptr).size(), 2u) << "no neighbours by a shared edge";
    EXPECT_TRUE(isFolderDirty(out + "/"));

    // A second package keeps what it doesn't know, and fills the hole.
    writeSrtm(coarse, 1201, [](int row, int column) { return row == 7 && column == 9 ? 55 : -32768; });
    EXPECT_EQ(ChartMakerRun({"terrain", "--out", out, "--name", "More", coarse}).status, 0);
    const std::vector<int16_t> filled = loadCell(out + "/", 340, 11, west);
    EXPECT_EQ(filled[7 * TileSide + 9], 55);
    EXPECT_EQ(filled[8 * TileSide + 2], 6);
}

TEST(ChartMakerTerrain, tellsWhatIsMissing) {
    EXPECT_EQ(ChartMakerRun({"terrain", "--out", "/tmp", "x.hgt"}).status, 2);
    EXPECT_EQ(ChartMakerRun({"terrain", "--name", "x", "x.hgt"}).status, 2);
    EXPECT_EQ(ChartMakerRun({"terrain", "--out", "/tmp", "--name", "a/b", "x.hgt"}).status, 2);
    EXPECT_EQ(ChartMakerRun({"terrain", "--size", "3"}).status, 2);
}

/// 1 degree from 48 N on, a world file beside it: the western half red, the eastern half transparent.
void writeChart(const std::string& path, unsigned char red, bool isEastOpaque, double west = 10.0,
                double degreesPerPixel = 0.01) {
    GDALAllRegister();
    GDALDriver* memory = GetGDALDriverManager()->GetDriverByName("MEM");
    const GDALDatasetUniquePtr chart(memory->Create("", 100, 100, 4, GDT_Byte, nullptr));
    double place[] = {west, degreesPerPixel, 0.0, 48.0, 0.0, -0.01};
    chart->SetGeoTransform(place);
    OGRSpatialReference wgs84;
    wgs84.SetWellKnownGeogCS("WGS84");
    chart->SetSpatialRef(&wgs84);
    chart->GetRasterBand(4)->SetColorInterpretation(GCI_AlphaBand);
    chart->GetRasterBand(1)->Fill(red);
    std::vector<unsigned char> alpha(100 * 100);
    for (size_t i = 0; i < alpha.size(); ++i)
        alpha[i] = i % 100 < 50 || isEastOpaque ? 255 : 0;
    ASSERT_EQ(chart->GetRasterBand(4)->RasterIO(GF_Write, 0, 0, 100, 100, alpha.data(), 100, 100, GDT_Byte, 0, 0),
              CE_None);
    const GDALDatasetUniquePtr file(GetGDALDriverManager()->GetDriverByName("GTiff")->CreateCopy(
        path.c_str(), chart.get(), FALSE, nullptr, nullptr, nullptr));
    ASSERT_TRUE(file);
}

int redOf(const std::string& path, int x, int y) {
    const GDALDatasetUniquePtr tile(GDALDataset::Open(path.c_str()));
    unsigned char red = 0;
    return tile && tile->GetRasterXSize() == 512 &&
                   tile->GetRasterBand(1)->RasterIO(GF_Read, x, y, 1, 1, &red, 1, 1, GDT_Byte, 0, 0) == CE_None
               ? red
               : -1;
}

TEST(ChartMakerBackgrounds, fillTheLeavesThatChartsCover) {
    const TemporaryFolder folder;
    writeChart(folder.path("whole.tif"), 60, true);
    writeChart(folder.path("half.tif"), 200, false);
    folder.write("bad.tif", "no chart");
    writeChart(folder.path("nowhere.tif"), 60, true, -1e15);
    writeChart(folder.path("endless.tif"), 60, true, 0.0, 1e9);
    const Arguments common{"backgrounds", "--out", folder.path("Images"), "--vendor", "Maps", "--name", "Test",
                           "--type",      "vfr"};
    const auto run = [&](const std::string& file) {
        Arguments arguments = common;
        arguments.push_back(folder.path(file));
        return ChartMakerRun(arguments).status;
    };
    const std::string images = folder.path("Images/"), tiles = getBgFolder(images, "Maps");
    const std::string west = tiles + "vfr_" + std::to_string(getLeafIndex(20, 84)) + ".png";
    const std::string east = tiles + "vfr_" + std::to_string(getLeafIndex(21, 84)) + ".png";
    EXPECT_EQ(run("half.tif"), 0);
    EXPECT_EQ(redOf(west, 256, 256), 200);
    EXPECT_EQ(redOf(east, 256, 256), -1) << "nothing of the chart lies there";
    EXPECT_EQ(run("whole.tif"), 0);
    EXPECT_EQ(redOf(east, 256, 256), 60);
    EXPECT_EQ(redOf(west, 256, 256), 60) << "the newer one covers";
    EXPECT_EQ(run("half.tif"), 0);
    EXPECT_EQ(redOf(east, 256, 256), 60) << "what was there stays where the newer is transparent";
    for (const char* wrong : {"bad.tif", "nowhere.tif", "endless.tif"}) {
        EXPECT_EQ(run(wrong), 1) << wrong;
        EXPECT_EQ(ChartMakerRun({"terrain", "--out", folder.path("Terrain"), "--name", "x", folder.path(wrong)}).status,
                  1)
            << wrong;
    }
    std::string vendor;
    EXPECT_EQ(parseBgFile(images + "Test.bg", &vendor, nullptr, nullptr, nullptr, nullptr).size(), 4u);
    EXPECT_EQ(vendor, "Maps");
    EXPECT_TRUE(isFolderDirty(tiles));
    EXPECT_EQ(
        ChartMakerRun({"backgrounds", "--out", "x", "--vendor", "a/b", "--name", "n", "--type", "vfr", "f"}).status, 2);
}

} // namespace
} // namespace skyvane
