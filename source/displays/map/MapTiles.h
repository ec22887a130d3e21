#pragma once

#include "core/engine/EngineRef.h"
#include "displays/mapmath/TileGrid.h"

#include <functional>
#include <irrlicht.h>
#include <map>
#include <memory>
#include <vector>

namespace skyvane {

class Context;
class Drawer2D;
class PanelManager;

/// Who has drawn into which target last: maps of different pages share them.
using TileWriters = std::map<const irr::video::ITexture*, const void*>;

/// The render targets around a map: one set that is complete and drawn each frame, and one that is being filled, which
/// takes its place when all of it is there. So the chart never goes blank: an old set lies at its place on the earth
/// until the new one is complete, also while the map is zoomed.
///
/// Where memory doesn't do for two sets there is one, and tiles appear as they are drawn. Main thread only.
class MapTiles {
public:
    /// What draws into a tile: begin() is called first for each, then proceed() until it is true.
    class ITilePainter {
    public:
        virtual void beginTile(const MapBox& box, const MapBox& drawnBox, int edge) = 0;
        /// The drawer's viewport is the tile's. True when it is done.
        virtual bool proceedTile(double seconds) = 0;
        virtual ~ITilePainter() = default;
    };

    MapTiles(Context* context, const void* owner, TileWriters& writers);
    ~MapTiles();
    MapTiles(const MapTiles&) = delete;
    MapTiles& operator=(const MapTiles&) = delete;

    /// Targets for a panel of that size, shared under that id. False when the driver has none.
    bool create(const TileShape& shape, int id);
    bool isCreated() const { return shape_.getCount() > 0; }
    const TileShape& getShape() const { return shape_; }

    /// A new set begins around what the view shows; one that was being filled is given up.
    void begin(const MapView& view);
    void abort() { filling_ = nullptr; }
    bool isFilling() const { return filling_ != nullptr; }
    /// Goes on for that many seconds. True when the set has become complete in this call.
    bool proceed(ITilePainter& painter, double seconds);

    /// Whether there is a complete set, still as it was drawn.
    bool isComplete() const;
    /// Whether the complete set, and the one that is being filled if there is one, cover the panel.
    bool covers(const MapView& view) const;
    const TileGrid& getGrid() const { return shown_->grid; }
    /// The complete set, or the one in the making without a second, in the viewport of the panel.
    void draw(const MapView& view, irr::u8 alpha);

private:
    struct Tile {
        irr::video::ITexture* target = nullptr; ///< The panel manager's.
        EngineRef<irr::scene::SMeshBuffer> quad;
    };
    struct Set {
        TileGrid grid;
        std::vector<Tile> tiles;
        int done = 0; ///< Tiles that are drawn.
    };

    bool request(Set& set, int id);
    void release();
    void release(Set& set);
    bool beginTarget(Tile& tile, bool clear);
    void drawTile(const Set& set, int number, const MapView& view, irr::u8 alpha);

    PanelManager* panels_; ///< Beyond its own life in the context, while it lets its panels go.
    Drawer2D* drawer_;
    const void* owner_;
    TileWriters& writers_;
    TileShape shape_;
    int id_ = 0;
    Set sets_[2];
    Set* shown_ = &sets_[0];
    Set* filling_ = nullptr;
    bool tileBegun_ = false;
    bool hasTwoSets_ = false;
};

} // namespace skyvane
