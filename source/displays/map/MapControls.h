#pragma once

#include "displays/mapmath/MapGestures.h"
#include "gui/font/CachedText.h"

#include <array>
#include <irrlicht.h>
#include <vector>

namespace skyvane {

class Map2D;
class MapView;
class Skin;
struct MapImages;
struct MapReadings;

/// What lies over a map: compass button and zoom bar, the scale, which way is up, the distance to the cross, and words
/// where something is missing. Main thread only.
class MapControls {
public:
    MapControls(Map2D& map, const MapView& view, const MapImages& images);

    /// Where fingers find them, in pixels of the panel.
    MapGestures::Places places() const;
    /// `panel` on the screen. Claims the place of the compass button from the messages where
    /// they would cover it.
    void draw(const irr::core::rect<int>& panel, const MapReadings& readings, const MapGestures& gestures);
    /// A box that says so while the first set of tiles is made.
    void drawDrawingBox(const irr::core::rect<int>& panel);
    /// Where the last frame had words and marks of its own, in pixels of the panel.
    const std::vector<irr::core::rect<int>>& getPlates() const { return plates_; }

private:
    int compassEdge() const;
    void drawPlate(const irr::core::rect<int>& place, irr::video::SColor color);
    void drawCompass(const irr::core::rect<int>& panel);
    void drawZoomBar(const MapGestures& gestures);
    void drawOrientation(const irr::core::rect<int>& panel, int left);
    void drawScale(const irr::core::rect<int>& panel, int left);
    void drawDistance(const irr::core::rect<int>& panel, const MapReadings& readings);
    void drawTrouble(const irr::core::rect<int>& panel, const MapReadings& readings);
    /// On a plate of its own, in pixels of the panel.
    void drawText(CachedText& text, const irr::core::rect<int>& panel, const irr::core::rect<int>& place, float scale,
                  bool hcenter);
    void set(CachedText& text, const wchar_t* words, irr::video::SColor color) const;
    int widthOf(const wchar_t* words, float scale) const;
    int rowHeight() const;

    Map2D& map_;
    const MapView& view_;
    const MapImages& images_;
    CachedText orientation_;
    CachedText scale_;
    CachedText distance_;
    std::array<CachedText, 3> troubles_; ///< Position, heading, altitude.
    CachedText drawing_;
    std::wstring wide_;
    std::vector<irr::core::rect<int>> plates_;
};

} // namespace skyvane
