#include "terrain/tree/MMTerrainNode.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthRectangles.h"
#include "terrain/tree/MMData.h"
#include "terrain/tree/TerrainStore.h"
#include "terrain/tree/TileSampling.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {
namespace {

/// The degrees of a cell that are worth calling inside the world.
constexpr double LeastArea = 0.0001;

double calcDensity(const ChartPosition& nw, const ChartPosition& se) {
    const ChartPosition inNw(std::clamp(nw.longitude, 0.0, 360.0), std::clamp(nw.latitude, -90.0, 90.0));
    const ChartPosition inSe(std::clamp(se.longitude, 0.0, 360.0), std::clamp(se.latitude, -90.0, 90.0));
    const double inside = (inSe.longitude - inNw.longitude) * (inNw.latitude - inSe.latitude);
    if (inside < LeastArea)
        return 0.0;
    const double full = (se.longitude - nw.longitude) * (nw.latitude - se.latitude);
    const double area = calcConstrainedArea(inNw, inSe);
    return area > 0.0 ? TileSamples * (inside / full) / area : std::numeric_limits<double>::infinity();
}

double between(double from, double to, int part, int parts) {
    const double share = static_cast<double>(part) / parts;
    return (1.0 - share) * from + share * to;
}

bool isAllZero(const int16_t* heights) {
    return std::all_of(heights, heights + TileSamples, [](int16_t height) { return height == 0; });
}

} // namespace

void MMTerrainNode::init(TerrainStore* store, MMTerrainNode* parent, int& nextId) {
    store_ = store;
    parent_ = parent;
    id_ = nextId++;
    level_ = parent ? parent->level_ + 1 : 0;
    countBelow_ = isLeaf() ? 0 : countTerrainNodes(level_ + 1);
    density_ = calcDensity(nw_, se_);
    // The root's density is asked by nobody.
    leastDensity_ = parent ? std::max(density_, parent->leastDensity_) : -std::numeric_limits<double>::infinity();
    mostDensity_ = std::numeric_limits<double>::infinity();
    const int columns = getColumns(), rows = getRows();
    for (int index = 0; index < columns * rows; ++index) {
        const int column = index % columns, row = index / columns;
        MMTerrainNode* child = getChild(index);
        child->nw_ = {between(nw_.longitude, se_.longitude, column, columns),
                      between(nw_.latitude, se_.latitude, row, rows)};
        child->se_ = {between(nw_.longitude, se_.longitude, column + 1, columns),
                      between(nw_.latitude, se_.latitude, row + 1, rows)};
        child->init(store, this, nextId);
        mostDensity_ = std::min(mostDensity_, child->density_);
    }
    setOceanOutsideWorld();
}

const MMTerrainNode* MMTerrainNode::getNeighbour(int east, int south) const {
    if (east == 0 && south == 0)
        return this;
    if (!parent_)
        return nullptr;
    const int columns = parent_->getColumns(), rows = parent_->getRows();
    const int index = (id_ - parent_->id_ - 1) / parent_->childStride();
    const int column = index % columns + east, row = index / columns + south;
    const int parentEast = column < 0 ? -1 : column / columns, parentSouth = row < 0 ? -1 : row / rows;
    const MMTerrainNode* parent = parent_->getNeighbour(parentEast, parentSouth);
    return parent ? parent->getChild(column - parentEast * columns + (row - parentSouth * rows) * columns) : nullptr;
}

bool MMTerrainNode::isOutsideWorld() const {
    return nw_.longitude >= 360.0 || nw_.latitude <= -90.0 || se_.latitude >= 90.0;
}

void MMTerrainNode::setOceanOutsideWorld() {
    ocean_ = isOutsideWorld();
}

bool MMTerrainNode::contains(const ChartPosition& position) const {
    return position.longitude >= nw_.longitude && position.longitude <= se_.longitude &&
           position.latitude <= nw_.latitude && position.latitude >= se_.latitude;
}

const MMTerrainNode* MMTerrainNode::chooseChild(const ChartPosition& position, double density) const {
    for (int index = 0, count = getChildrenCount(); index < count; ++index) {
        const MMTerrainNode* child = getChild(index);
        if (child->contains(position) && child->density_ < density)
            return child;
    }
    return nullptr;
}

int16_t MMTerrainNode::hlp_getHeight(const ChartPosition& position, double density, bool interpolate, bool seaToo,
                                     Descent& descent) const {
    descent.chosen = this;
    if (seaToo && ocean_)
        return 0;
    if (const MMTerrainNode* child = chooseChild(position, density)) {
        const int16_t below = child->hlp_getHeight(position, density, interpolate, seaToo, descent);
        if (below != NoHeight && below != MissingTile)
            return below;
    }
    const int16_t* heights = store_->requestHeights(const_cast<MMTerrainNode*>(this));
    if (!heights)
        return MissingTile;
    descent.answering = this;
    descent.heights = heights;
    const int16_t height = sampleTile(heights, nw_, se_, position, interpolate);
    if (height == NoHeight)
        descent.hole = true;
    return height;
}

float MMTerrainNode::getHeight(const ChartPosition& position, const double& density, bool interpolate,
                               bool zeroIfMissing) {
    const ChartPosition place(Angle0to360(position.longitude), Latitudinize(position.latitude));
    Descent descent;
    const bool finite = std::isfinite(place.longitude) && std::isfinite(place.latitude);
    return toHeight(finite ? hlp_getHeight(place, density, interpolate, true, descent) : MissingTile, zeroIfMissing);
}

int16_t MMTerrainNode::getRawHeight(const ChartPosition& position, double density, bool interpolate) {
    const ChartPosition place(Angle0to360(position.longitude), Latitudinize(position.latitude));
    Descent descent;
    const bool finite = std::isfinite(place.longitude) && std::isfinite(place.latitude);
    return finite ? hlp_getHeight(place, density, interpolate, false, descent) : MissingTile;
}

std::unique_ptr<ITerrainData> MMTerrainNode::loadCorrespondingData(const char* folder) {
    auto data = std::make_unique<MMData>();
    if (!loadable_)
        return data;
    data->heights.reset(new int16_t[TileSamples]);
    if (loadTile(getTilePath(folder, id_), data->heights.get()) != TileLoad::Loaded) {
        loadable_ = false; // the disk isn't asked again
        data->heights.reset();
    }
    return data;
}

bool MMTerrainNode::saveCorrespondingData(const char* folder, const ITerrainData* data) {
    const auto* tile = static_cast<const MMData*>(data);
    return tile && tile->heights && saveTile(getTilePath(folder, id_), tile->heights.get());
}

void MMTerrainNode::noteOcean(const int16_t* heights) {
    bool sea = true;
    for (int index = 0, count = getChildrenCount(); index < count && sea; ++index)
        sea = getChild(index)->ocean_;
    ocean_ = sea && isAllZero(heights);
}

void MMTerrainNode::resetLoadable() {
    const int count = isLeaf() ? 1 : countTerrainNodes(level_);
    for (MMTerrainNode* node = this; node != this + count; ++node) {
        node->loadable_ = true;
        node->setOceanOutsideWorld();
    }
}

float toHeight(int16_t raw, bool zeroIfMissing) {
    if (raw == NoHeight)
        return 0.0f;
    if (raw == MMTerrainNode::MissingTile)
        return zeroIfMissing ? 0.0f : std::numeric_limits<float>::infinity();
    return raw;
}

} // namespace skyvane
