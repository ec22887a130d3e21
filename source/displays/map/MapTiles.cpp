#include "displays/map/MapTiles.h"

#include "core/Context.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/PlainQuad.h"

#include <cmath>

namespace skyvane {
namespace {

/// Symbols reach into a tile from that far beyond its edge.
constexpr double marginPixels = 64.0;

/// What a tile holds is multiplied with its alpha already.
EngineRef<irr::scene::SMeshBuffer> makeQuad(irr::video::ITexture* target) {
    EngineRef<irr::scene::SMeshBuffer> quad = makePlainQuad();
    quad->Material.MaterialType = irr::video::EMT_ONETEXTURE_BLEND;
    quad->Material.MaterialTypeParam = irr::video::pack_textureBlendFunc(
        irr::video::EBF_ONE, irr::video::EBF_ONE_MINUS_SRC_ALPHA, irr::video::EMFN_MODULATE_1X,
        irr::video::EAS_TEXTURE | irr::video::EAS_VERTEX_COLOR);
    quad->Material.setTexture(0, target);
    return quad;
}

} // namespace

MapTiles::MapTiles(Context* context, const void* owner, TileWriters& writers)
    : panels_(context->getPanelManager()), drawer_(context->getDrawer()), owner_(owner), writers_(writers) {}

MapTiles::~MapTiles() {
    release();
}

bool MapTiles::create(const TileShape& shape, int id) {
    release();
    id_ = id;
    shape_ = shape;
    if (!request(sets_[0], id)) {
        release();
        return false;
    }
    hasTwoSets_ = request(sets_[1], id);
    if (!hasTwoSets_)
        release(sets_[1]);
    return true;
}

bool MapTiles::request(Set& set, int id) {
    for (int i = 0; i < shape_.getCount(); ++i) {
        irr::video::ITexture* target = panels_->requestRTT(this, id, shape_.edge);
        if (!target)
            return false;
        set.tiles.push_back({target, makeQuad(target)});
    }
    return true;
}

void MapTiles::release() {
    filling_ = nullptr;
    shown_ = &sets_[0];
    shape_ = TileShape();
    hasTwoSets_ = false;
    for (Set& set : sets_)
        release(set);
}

void MapTiles::release(Set& set) {
    for (Tile& tile : set.tiles) {
        tile.quad.reset();
        const auto writer = writers_.find(tile.target);
        if (writer != writers_.end() && writer->second == owner_)
            writers_.erase(writer);
        panels_->removeRequest(tile.target, this, id_);
    }
    set = Set();
}

void MapTiles::begin(const MapView& view) {
    if (!isCreated())
        return;
    filling_ = hasTwoSets_ && isComplete() ? (shown_ == &sets_[0] ? &sets_[1] : &sets_[0]) : shown_;
    filling_->grid = TileGrid(view, shape_);
    filling_->done = 0;
    tileBegun_ = false;
}

bool MapTiles::beginTarget(Tile& tile, bool clear) {
    drawer_->flush();
    irr::video::IVideoDriver* driver = drawer_->getDevice()->getVideoDriver();
    if (!driver->setRenderTarget(tile.target, clear, false, irr::video::SColor(0)))
        return false;
    writers_[tile.target] = owner_;
    drawer_->setViewPort(irr::core::rect<int>(0, 0, shape_.edge, shape_.edge));
    return true;
}

bool MapTiles::proceed(ITilePainter& painter, double seconds) {
    if (!filling_)
        return false;
    const double end = Secs() + seconds;
    bool isTurnedAway = false;
    while (filling_->done < shape_.getCount() && Secs() < end) {
        const int number = filling_->done;
        if (!beginTarget(filling_->tiles[static_cast<size_t>(number)], !tileBegun_))
            break;
        isTurnedAway = true;
        if (!tileBegun_)
            painter.beginTile(filling_->grid.getTileBox(number, 0.0), filling_->grid.getTileBox(number, marginPixels),
                              shape_.edge);
        tileBegun_ = true;
        if (!painter.proceedTile(end - Secs()))
            break;
        tileBegun_ = false;
        ++filling_->done;
    }
    if (isTurnedAway) {
        drawer_->flush();
        drawer_->getDevice()->getVideoDriver()->setRenderTarget(static_cast<irr::video::ITexture*>(nullptr), false,
                                                                false);
    }
    if (filling_->done < shape_.getCount())
        return false;
    shown_ = filling_;
    filling_ = nullptr;
    return true;
}

bool MapTiles::isComplete() const {
    if (!isCreated() || shown_ == filling_ || shown_->done < shape_.getCount())
        return false;
    for (const Tile& tile : shown_->tiles) {
        const auto writer = writers_.find(tile.target);
        if (writer == writers_.end() || writer->second != owner_)
            return false;
    }
    return true;
}

bool MapTiles::covers(const MapView& view) const {
    if (filling_)
        return filling_->grid.covers(view);
    return isComplete() && shown_->grid.covers(view);
}

void MapTiles::draw(const MapView& view, irr::u8 alpha) {
    if (!isComplete() && !(filling_ && filling_ == shown_))
        return;
    // In the making, the last one isn't whole.
    for (int number = 0; number < shown_->done; ++number)
        drawTile(*shown_, number, view, alpha);
}

void MapTiles::drawTile(const Set& set, int number, const MapView& view, irr::u8 alpha) {
    const Tile& tile = set.tiles[static_cast<size_t>(number)];
    const TileGrid::Point scale = set.grid.getScale(view);
    TileGrid::Point corner = set.grid.getCorner(view);
    const bool isPlain = view.getMode() != MapMode::TrackUp && std::fabs(scale.X - 1.0) < 1e-4;
    if (isPlain) // whole pixels stay sharp
        corner = TileGrid::Point(std::round(corner.X), std::round(corner.Y));
    const int column = number % shape_.columns, row = number / shape_.columns;
    const TileGrid::Point middle(0.5 * view.getPanel().width, 0.5 * view.getPanel().height);
    tile.quad->Material.TextureLayer[0].BilinearFilter = !isPlain;
    TileGrid::Point corners[4];
    for (int i = 0; i < 4; ++i) {
        const double x = (column + (i & 1)) * shape_.edge * scale.X;
        const double y = (row + (i >> 1)) * shape_.edge * scale.Y;
        corners[i] = corner + TileGrid::Point(x, y);
        if (view.getMode() == MapMode::TrackUp)
            corners[i] = view.getPivot() + turnToTop(corners[i] - middle, view.getHeading());
    }
    placeQuad(*tile.quad, corners, irr::video::SColor(alpha, alpha, alpha, alpha));
    drawer_->draw2DMeshBuffer(tile.quad.get());
}

} // namespace skyvane
