#pragma once

namespace skyvane {

class Map2D;
class MapView;
struct MapImages;
struct MapReadings;
struct MapSettings;

/// Draws the aircraft and the line ahead of it, with a mark for each mile or kilometre. Yellow where its data may be
/// wrong, red where it is. Main thread only.
class MapAircraft {
public:
    MapAircraft(Map2D& map, const MapView& view, const MapImages& images) : map_(map), view_(view), images_(images) {}

    /// In the panel's viewport.
    void draw(const MapReadings& readings, const MapSettings& settings);

private:
    void drawNose(int length, float turnedDegrees);

    Map2D& map_;
    const MapView& view_;
    const MapImages& images_;
};

} // namespace skyvane
