#include "terrain/mesh/TerrainImage.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthRectangles.h"
#include "chart/geodesy/LocalFrame.h"
#include "terrain/tree/TerrainSampler.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr uint32_t HeightMask = 0xffff;

/// The rectangle's picture: where its pixels are, and how far apart in metres.
struct ImageFrame {
    ImageFrame(const ChartPosition& nw, const ChartPosition& se, int width, int height)
        : north(Latitudinize(nw.latitude)), west(nw.longitude), columns(width), rows(height) {
        const double south = Latitudinize(se.latitude);
        double degreesEast = Angle0to360(se.longitude - nw.longitude);
        if (degreesEast == 0.0 && se.longitude != nw.longitude)
            degreesEast = 360.0;
        stepEast = degreesEast / width;
        stepNorth = (north - south) / height;
        density = width * static_cast<double>(height) /
                  calcConstrainedArea(ChartPosition(0.0, north), ChartPosition(degreesEast, south));
        metresEast = stepEast * MetresPerDegree * longitudeScale(0.5 * (north + south));
        metresNorth = stepNorth * MetresPerDegree;
    }

    ChartPosition at(int column, int row) const {
        return ChartPosition(west + (column + 0.5) * stepEast, north - (row + 0.5) * stepNorth);
    }

    double north, west;
    int columns, rows;
    double stepEast, stepNorth; ///< Degrees a pixel.
    double metresEast, metresNorth;
    double density;
};

uint32_t packNormalPart(double part) {
    return static_cast<uint32_t>(std::clamp((part * 0.5 + 0.5) * 255.0 + 0.5, 0.0, 255.0));
}

int heightOf(uint32_t pixel) {
    return static_cast<int>(pixel & HeightMask);
}

bool isKnown(uint32_t pixel) {
    return heightOf(pixel) != TerrainImageUnknown;
}

/// The rise per metre towards one side, from the pixels beside a place that exist; none towards what nobody knows.
double slope(uint32_t behind, uint32_t ahead, int steps, double metres) {
    if (steps < 1 || !(metres > 0.0) || !isKnown(behind) || !isKnown(ahead))
        return 0.0;
    return (heightOf(ahead) - heightOf(behind)) / (steps * metres);
}

void fillNormals(const ImageFrame& frame, uint32_t* pixels) {
    for (int row = 0; row < frame.rows; ++row)
        for (int column = 0; column < frame.columns; ++column) {
            uint32_t* pixel = pixels + row * frame.columns + column;
            const int west = column > 0, east = column + 1 < frame.columns;
            const int north = row > 0, south = row + 1 < frame.rows;
            const double riseEast = slope(pixel[-west], pixel[east], west + east, frame.metresEast);
            const double riseNorth =
                slope(pixel[south * frame.columns], pixel[-north * frame.columns], north + south, frame.metresNorth);
            const double length = std::sqrt(riseEast * riseEast + 1.0 + riseNorth * riseNorth);
            *pixel = (*pixel & HeightMask) | packNormalPart(-riseEast / length) << 24 |
                     packNormalPart(-riseNorth / length) << 16;
        }
}

} // namespace

TerrainImageFigures fillTerrainImage(TerrainSampler& terrain, const ChartPosition& nw, const ChartPosition& se,
                                     int width, int height, uint32_t* pixels) {
    TerrainImageFigures figures;
    if (width < 1 || height < 1)
        return figures;
    const ImageFrame frame(nw, se, width, height);
    double sum = 0.0, minimum = HeightMask, maximum = -HeightMask * 1.0;
    for (int row = 0; row < height; ++row)
        for (int column = 0; column < width; ++column) {
            const TerrainSampler::Height sample = terrain.sample(frame.at(column, row), frame.density);
            const bool known = terrain.isBelievable(sample, frame.density);
            if (known)
                figures.undefined = false;
            const float metres = known ? sample.metres : 0.0f;
            sum += static_cast<double>(metres);
            minimum = std::min(minimum, static_cast<double>(metres));
            maximum = std::max(maximum, static_cast<double>(metres));
            const int packed =
                known ? std::clamp(static_cast<int>(metres) + TerrainImageOffset, 1, 0xffff) : TerrainImageUnknown;
            pixels[row * width + column] = ~HeightMask | static_cast<uint32_t>(packed);
        }
    fillNormals(frame, pixels);
    if (!figures.undefined) {
        figures.minimum = static_cast<float>(minimum);
        figures.maximum = static_cast<float>(maximum);
        figures.average = static_cast<float>(sum / (static_cast<double>(width) * height));
    }
    return figures;
}

} // namespace skyvane
