#pragma once

namespace skyvane {

class IProcedure;
class Map2D;
struct MapImages;

/// Draws the flight plan on a map: the procedures to come below the current one. Main thread only.
class MapProcedures {
public:
    MapProcedures(Map2D& map, const MapImages& images) : map_(map), images_(images) {}

    /// So many of the succeeding ones, all of them for 0, where they are switched on; then the current one.
    void drawAllProcedures(bool intoRTT, int count);

private:
    void drawProcedure(IProcedure& procedure, bool intoRTT, bool succeeding);

    Map2D& map_;
    const MapImages& images_;
};

} // namespace skyvane
