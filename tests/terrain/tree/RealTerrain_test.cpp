#include "terrain/RealTerrain.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double MetresPerFoot = 0.3048;

/// The Pyrenees around Andorra.
class RealTerrain : public TerrainFixture {
protected:
    void SetUp() override {
        const std::string data = realDataFolder();
        if (data.empty())
            GTEST_SKIP() << "no real terrain: SKYVANE_DATA names none";
        north_ = readSrtmZip(data + "terrain/N42E001.hgt.zip");
        south_ = readSrtmZip(data + "terrain/N41E001.hgt.zip");
        ASSERT_EQ(north_.size(), static_cast<size_t>(TileSamples));
        ASSERT_EQ(south_.size(), static_cast<size_t>(TileSamples));
        save(cell(1, 43, 1), north_);
        save(cell(1, 42, 1), south_);
    }
    Tile north_, south_;
};

TEST_F(RealTerrain, isThatOfTheSource) {
    // The first row and column lie in neighbours that aren't there.
    for (int row = 1; row < TileSide; row += 37)
        for (int column = 1; column < TileSide; column += 41) {
            const int16_t height = north_[static_cast<size_t>(row * TileSide + column)];
            if (height == NoHeight)
                continue;
            ASSERT_EQ(heightAt(1.0 + column / 1200.0, 43.0 - row / 1200.0), height) << row << " " << column;
        }
}

TEST_F(RealTerrain, carriesItsAirports) {
    struct Airport {
        const char* name;
        double longitude, latitude, feet;
    };
    // Their published elevations, at their reference points.
    for (const Airport& airport :
         {Airport{"LESU La Seu d'Urgell", 1.4092, 42.3386, 2625}, Airport{"LECD La Cerdanya", 1.866, 42.386, 3586}})
        EXPECT_NEAR(heightAt(airport.longitude, airport.latitude), airport.feet * MetresPerFoot, 12.0) << airport.name;
}

TEST_F(RealTerrain, hasNoStepBetweenNeighbours) {
    for (int column = 0; column < TileSide; ++column)
        EXPECT_EQ(north_[static_cast<size_t>(TileSteps * TileSide + column)], south_[static_cast<size_t>(column)]);
    int compared = 0;
    for (double longitude = 1.001; longitude < 2.0; longitude += 0.00137) {
        const float above = heightAt(longitude, 42.0 + 1e-7), below = heightAt(longitude, 42.0 - 1e-7);
        if (!std::isfinite(above) || !std::isfinite(below))
            continue; // a hole without coarser levels
        EXPECT_NEAR(above, below, 1.0) << longitude;
        ++compared;
    }
    EXPECT_GT(compared, 600);
}

} // namespace
} // namespace skyvane
