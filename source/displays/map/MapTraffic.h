#pragma once

#include "gui/font/CachedText.h"

#include <irrlicht.h>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class Map2D;
class MapView;
struct MapImages;
struct TrafficPicture;

/// Draws the traffic that the newest record tells of, as long as its sensor stands by it: an arrow along the target's
/// track, or a diamond without one, the difference in altitude with its trend, and the call sign. Main thread only.
class MapTraffic {
public:
    MapTraffic(Map2D& map, const MapView& view, const MapImages& images) : map_(map), view_(view), images_(images) {}

    /// `panel` on the screen, for texts; the rest in its viewport.
    void draw(const irr::core::rect<int>& panel, int filterFeet);
    int getDrawnCount() const { return static_cast<int>(used_); }

private:
    struct Texts {
        CachedText difference;
        CachedText name;
        irr::core::vector2d<int> place;
    };

    void drawTarget(const TrafficPicture& target, const irr::core::vector2d<int>& place, int edge);
    void drawPlates(int edge, float scale);
    void drawTexts(const irr::core::rect<int>& panel, int edge);

    Map2D& map_;
    const MapView& view_;
    const MapImages& images_;
    std::vector<std::unique_ptr<Texts>> texts_; ///< Kept from frame to frame.
    size_t used_ = 0;
    std::wstring wide_;
};

} // namespace skyvane
