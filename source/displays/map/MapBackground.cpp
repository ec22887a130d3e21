#include "displays/map/MapBackground.h"

#include "chart/areas/AreaNode.h"
#include "chart/store/IChart.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/PlainQuad.h"

namespace skyvane {
namespace {

/// A tile's side in pixels; at the scale of the view a tile shall be about as large on the screen.
constexpr double tilePixels = 512.0;
constexpr double slack = 1.5;
/// Where a coarser level of the tiles is missing, so many finer ones are looked at.
constexpr int finerLevels = 2;
constexpr int rootArea = 0;

} // namespace

MapBackground::MapBackground(Drawer2D* drawer) : drawer_(drawer), quad_(makePlainQuad()) {
    irr::video::SMaterial& material = quad_->Material;
    material.MaterialType = irr::video::EMT_ONETEXTURE_BLEND;
    material.MaterialTypeParam = irr::video::pack_textureBlendFunc(
        irr::video::EBF_SRC_ALPHA, irr::video::EBF_ONE_MINUS_SRC_ALPHA, irr::video::EMFN_MODULATE_1X,
        irr::video::EAS_TEXTURE | irr::video::EAS_VERTEX_COLOR);
    material.TextureLayer[0].BilinearFilter = true;
}

bool MapBackground::draw(IChart* chart, const MapView& view, MapBackdrop backdrop, irr::u8 alpha) {
    if (!chart || backdrop == MapBackdrop::None)
        return false;
    backdrop_ = backdrop;
    const MapBox reach = view.getReach(0.0);
    nw_ = reach.getNW();
    se_ = reach.getSE();
    wantedDegrees_ = slack * tilePixels * view.getLatitudePerPixel();
    for (irr::u32 i = 0; i < 4; ++i)
        quad_->Vertices[i].Color = irr::video::SColor(alpha, 255, 255, 255);
    const bool any = drawArea(chart, view, rootArea, finerLevels);
    quad_->Material.setTexture(0, nullptr); // the chart may take it from the driver
    return any;
}

bool MapBackground::drawArea(IChart* chart, const MapView& view, int number, int levelsBelow) {
    const IArea* area = chart->getArea(number);
    if (!area || (number != rootArea && !area->Overlap(nw_, se_)))
        return false;
    const MapBox box{area->getNWEdge().longitude, area->getSEEdge().latitude, area->getSEEdge().longitude,
                     area->getNWEdge().latitude};
    const AreaNode* node = area->asNode();
    if (!node || box.getHeight() <= wantedDegrees_) {
        if (irr::video::ITexture* texture = chart->getTexture(static_cast<IArea::BgType>(backdrop_), number)) {
            drawTexture(texture, box, view);
            return true;
        }
        if (levelsBelow-- == 0)
            return false;
    }
    bool any = false;
    for (int i = 0; node && i < node->getChildCount(); ++i)
        any = drawArea(chart, view, node->getChild(i), levelsBelow) || any;
    return any;
}

void MapBackground::drawTexture(irr::video::ITexture* texture, const MapBox& box, const MapView& view) {
    const irr::core::vector2d<double> corners[] = {
        view.toPanel(ChartPosition(box.west, box.north)), view.toPanel(ChartPosition(box.east, box.north)),
        view.toPanel(ChartPosition(box.west, box.south)), view.toPanel(ChartPosition(box.east, box.south))};
    quad_->Material.setTexture(0, texture);
    placeQuad(*quad_, corners, quad_->Vertices[0].Color);
    drawer_->draw2DMeshBuffer(quad_.get());
}

} // namespace skyvane
