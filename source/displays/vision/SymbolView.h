#pragma once

#include "displays/instruments/PanelTexture.h"
#include "displays/shapes/ShapeMesh.h"
#include "displays/visionmath/GlassSymbols.h"
#include "gui/font/CachedText.h"

#include <array>
#include <irrlicht.h>
#include <optional>

namespace skyvane {

class Context;
class Drawer2D;

/// Draws the symbols over a pilot's view: horizon and ladder, flight path, bank scale, chevrons. Allocates nothing
/// while the numbers of the ladder are those of before.
class SymbolView {
public:
    struct Scene {
        ViewPose pose;
        irr::core::rect<int> rect; ///< The panel on the screen.
        irr::core::rect<int> free; ///< What other instruments leave of it.
        double pitchDegrees = 0.0;
        double bankDegrees = 0.0;
        std::optional<double> sideways;           ///< -1 to 1, where a ball lies.
        std::optional<ViewPose::Vector> velocity; ///< Of the scene, of any length.
        bool isDoubtful = false;
        bool hasBankScale = true;
    };

    explicit SymbolView(Context* context);
    void draw(const Scene& scene);

private:
    void draw(const GlassPicture& picture, irr::video::SColor color);
    void drawBankScale(const Scene& scene, const GlassSymbols& symbols, uint32_t color);
    void drawNumbers(const Scene& scene, const GlassSymbols& symbols, const PitchLadder& ladder,
                     irr::video::SColor color);

    Context* context_;
    Drawer2D* drawer_;
    std::array<PanelTexture, GlassPicture::kinds> pictures_;
    ShapeMesh shapes_;
    std::array<CachedText, 10> numbers_; ///< Of each tenth degree.
};

} // namespace skyvane
