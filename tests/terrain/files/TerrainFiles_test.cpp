#include "core/files/CompressedBlock.h"
#include "core/files/SafeFile.h"
#include "terrain/TerrainFixture.h"
#include "terrain/files/TerrainIndexFile.h"
#include "terrain/tree/TerrainTreeShape.h"

#include <csignal>
#include <fstream>
#include <iterator>
#include <sstream>
#include <sys/resource.h>

namespace skyvane {
namespace {

std::string bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

class TerrainFiles : public ::testing::Test {
protected:
    TileLoad loadBytes(const std::string& bytes) {
        folder_.write("7.terr", bytes);
        return loadTile(getTilePath(folder_.path() + "/", 7), tile_.data());
    }
    TemporaryFolder folder_;
    Tile tile_ = Tile(TileSamples);
};

std::string compressed(const std::string& raw) {
    std::ostringstream out;
    compressBufferToFile(out, reinterpret_cast<const unsigned char*>(raw.data()), static_cast<int>(raw.size()));
    return out.str();
}

TEST_F(TerrainFiles, keepTheBytesOfTheFormat) {
    Tile tile(TileSamples);
    tile[0] = 0x1234;
    tile[1] = NoHeight;
    tile[TileSide] = -2;
    const std::string path = getTilePath(folder_.path() + "/", 42);
    ASSERT_EQ(path, folder_.path() + "/42.terr");
    ASSERT_TRUE(saveTile(path, tile.data()));
    const std::string bytes = bytesOf(path);
    EXPECT_EQ(bytes.substr(0, 6), std::string("\xc2\x04\x2c\x00\x78\xda", 6)); // the size, zlib's level 9
    std::istringstream in(bytes);
    int length = 0;
    const auto raw = compressedFileToBuffer(in, length);
    ASSERT_EQ(length, TileBytes);
    EXPECT_EQ(std::string(reinterpret_cast<char*>(raw.get()), 4), std::string("\x34\x12\x00\x80", 4));
    EXPECT_EQ(std::string(reinterpret_cast<char*>(raw.get()) + 2 * TileSide, 2), "\xfe\xff");
    ASSERT_EQ(loadTile(path, tile_.data()), TileLoad::Loaded);
    EXPECT_EQ(tile_, tile);
}

TEST_F(TerrainFiles, believeNoDamagedTile) {
    std::string raw(TileBytes, '\0');
    for (size_t i = 0; i < raw.size(); ++i)
        raw[i] = static_cast<char>(i / 5000 + i % 7);
    const std::string good = compressed(raw);
    EXPECT_EQ(loadBytes(good), TileLoad::Loaded);
    EXPECT_EQ(loadTile(folder_.path("none.terr"), tile_.data()), TileLoad::Missing);
    EXPECT_EQ(loadTile(folder_.path(), tile_.data()), TileLoad::Missing);
    EXPECT_EQ(loadBytes(""), TileLoad::Corrupted);
    EXPECT_EQ(loadBytes(good.substr(0, good.size() - 1)), TileLoad::Corrupted);
    EXPECT_EQ(loadBytes(compressed(std::string(TileBytes - 2, '\0'))), TileLoad::Corrupted);
    EXPECT_EQ(loadBytes(compressed(std::string(TileBytes + 2, '\0'))), TileLoad::Corrupted);
    // A stream that inflates to a whole tile, or to more, behind another size.
    EXPECT_EQ(loadBytes(compressed("ab").substr(0, 4) + good.substr(4)), TileLoad::Corrupted);
    EXPECT_EQ(loadBytes(good.substr(0, 4) + compressed(std::string(64 << 20, '\0')).substr(4)), TileLoad::Corrupted);
    for (size_t i = 4; i < good.size(); i += good.size() / 30) {
        std::string flipped = good;
        flipped[i] = static_cast<char>(flipped[i] ^ 0x10);
        EXPECT_EQ(loadBytes(flipped), TileLoad::Corrupted) << i;
    }
}

TEST_F(TerrainFiles, leaveTheOldTileWhenTheDiskIsFull) {
    const std::string path = folder_.path("9.terr");
    ASSERT_TRUE(saveTile(path, tile_.data()));
    const std::string before = bytesOf(path);
    unsigned seed = 1;
    const Tile noise = makeTile([&](int, int) { return (seed = seed * 1664525u + 1013904223u) >> 20; });
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit small = {100000, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const bool saved = saveTile(path, noise.data());
    setrlimit(RLIMIT_FSIZE, &old);
    EXPECT_FALSE(saved);
    EXPECT_EQ(bytesOf(path), before);
    EXPECT_FALSE(saveTile(folder_.path("no/folder.terr"), tile_.data()));
    folder_.write("8.terr.new", "what a kill left");
    removeUnfinishedFiles(folder_.path(), TerrainTileEnding);
    size_t files = 0;
    for ([[maybe_unused]] const auto& file : std::filesystem::directory_iterator(folder_.path()))
        ++files;
    EXPECT_EQ(files, 1u);
}

TEST_F(TerrainFiles, listTiles) {
    const std::string path = folder_.path("a.ti");
    ASSERT_TRUE(writeTIFile(path, "Pyrenees", {3, 133150, 0}, "closed"));
    EXPECT_EQ(bytesOf(path), "0\nPyrenees\n3\n133150\n0\nclosed");
    std::string name, closing;
    EXPECT_EQ(parseTIFile(path, &name, &closing), (std::list<int>{3, 133150, 0}));
    EXPECT_EQ(name + "/" + closing, "Pyrenees/closed");
    folder_.write("a.ti", "0\nx\n5\n-1\n+6\n12a\n\n133151\n99999999999\n 7\n8\n9");
    EXPECT_EQ(parseTIFile(path, nullptr, &closing), (std::list<int>{5, 8}));
    EXPECT_EQ(closing, "9");
    for (const char* wrong : {"1\nx\n5\n", "00\nx\n5\n", "0", "\n0\n"}) {
        folder_.write("a.ti", wrong);
        EXPECT_TRUE(parseTIFile(path, &name, &closing).empty()) << wrong;
    }
    EXPECT_TRUE(parseTIFile(folder_.path("none.ti"), &name, &closing).empty());
}

} // namespace
} // namespace skyvane
