#include "displays/map/MapTerrain.h"

#include "displays/instruments/PanelTexture.h"
#include "displays/vision/VisionRig.h"

#include <fstream>

namespace skyvane {
namespace {

/// The ground of a map, over the fill that it has where nothing else is drawn.
class MapTerrainTest : public VisionRig {
protected:
    static constexpr irr::u32 fill = 0xff00ff00;

    /// The share of the panel that a hatch has darkened.
    double drawHatch(bool isOpaque) {
        const PanelTexture gradient = loadPanelImage(context.get(), "media/terrainGradient.png");
        MapTerrain ground(context.get(), panel.get(), gradient.get());
        MapView view;
        view.setPanel({width, height, width, height, 40});
        view.setAircraft({1.5, 42.5}, 0.0);
        view.calculateResolution();
        view.calculateViewPort();
        gl.begin(irr::video::SColor(fill));
        context->getDrawer()->setViewPort(area);
        ground.draw(view, 1000.0, isOpaque);
        gl.end();
        return share(area, [](irr::video::SColor color) { return color.getGreen() < 230 && color.getGreen() > 150; });
    }
};

} // namespace

TEST_F(MapTerrainTest, GroundIsUnknownUntilItsFirstPicture) {
    saveFlatEarth(800);
    std::ofstream(home + "/.Skyvane/Terrain/earth.ti"); // a package of tiles has its list
    makePanel();
    const double hatched = drawHatch(true);
    EXPECT_GT(hatched, 0.05);
    EXPECT_LT(hatched, 0.2);
    EXPECT_EQ(drawHatch(false), 0.0) << "nothing over a scanned chart";
}

TEST_F(MapTerrainTest, WithoutAnyTerrainThereIsNoGround) {
    makePanel();
    EXPECT_EQ(drawHatch(true), 0.0);
}

} // namespace skyvane
