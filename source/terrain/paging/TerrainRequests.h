#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "terrain/mesh/TerrainImage.h"
#include "terrain/paging/ProfileAirspaces.h"

#include <cstdint>
#include <map>
#include <vector>

namespace skyvane {

class IChartElementSource;
struct PointCall;

/// Who asks for height profiles. Asked on the main thread.
class ITerrainPointCallback {
public:
    /// The call goes afterwards.
    virtual void OnHeightPoints(PointCall& call) = 0;
    virtual ~ITerrainPointCallback() = default;
};

/// The heights of the ground along a row of positions, and the airspaces over it.
struct PointCall {
    PointCall(ITerrainPointCallback* who, std::vector<ChartPosition> where, double interval)
        : caller(who), positions(std::move(where)), heights(positions.size()), known(positions.size(), 1),
          samplingInterval(interval) {}
    virtual ~PointCall() = default;

    /// The leaves of the area tree that hold a position.
    std::map<int, bool> findAreas(IChartElementSource* chart) const;

    /// The heights have come.
    bool isFilled() const { return maximum >= minimum; }

    // The search for airspaces, on the main thread, a slice of time at a frame.

    void prepareAirspaceFill(IChartElementSource* chart) { airspaces.prepare(positions, findAreas(chart), *chart); }
    /// True once all are found.
    bool continueAirspaceFill(double seconds) { return airspaces.run(seconds); }
    void finishAirspaceFill() { airspaces.finish(); }

    ITerrainPointCallback* caller;
    std::vector<ChartPosition> positions;
    std::vector<float> heights; ///< Metres, as fillProfileHeights gives them; 0 without terrain.
    std::vector<uint8_t> known; ///< A flag for each height: 0 where the terrain isn't known, or only coarsely.
    double samplingInterval;    ///< Square kilometres for which one sample does.
    unsigned timeStamp = 0;     ///< MilliSecs() of the answer.
    float minimum = 10000.0f;
    float maximum = -10000.0f;
    ProfileAirspaces airspaces; ///< Of the whole profile, once finishAirspaceFill was called.
    unsigned number = 0;        ///< The pager's.
};

/// A picture of the terrain of a rectangle; see fillTerrainImage.
struct ImageCall {
    virtual ~ImageCall() = default;
    ImageCall(const void* who, const ChartPosition& northWest, const ChartPosition& southEast, int widthPixels,
              int heightPixels)
        : requester(who), nw(northWest), se(southEast), width(widthPixels), height(heightPixels) {}

    const void* requester;
    ChartPosition nw, se;
    int width, height;
    std::vector<uint32_t> pixels; ///< Made on the terrain thread.
    TerrainImageFigures figures;
    unsigned number = 0; ///< The pager's.
};

} // namespace skyvane
