#pragma once

#include "displays/map/IChartElementRenderer.h"

#include <string>

namespace skyvane {

struct RendererParts;

/// What navaids and fixes have in common: which of them are shown, how a finger finds their symbol, and the diamond
/// above the ground that stands for them in a synthetic view.
class FixRenderer : public IChartElementRenderer {
public:
    bool isMouseOver2D(Map2D* map, const IChartElement* element, int index,
                       const irr::core::vector2d<int>& position) override;
    bool isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) override;
    bool isPotentiallyRenderable3D(int index, Map3D* map, const char* staticBytes) override;
    void render3D(const IChartElement* element, Map3D* map, int index) override;

protected:
    enum class Kind { Navaid, Waypoint };
    struct Traits {
        Kind kind;
        double symbolSize;             ///< The largest, times the usual one.
        irr::video::SColor sceneColor; ///< In the synthetic view.
        int sceneImportance;           ///< Of the label there.
    };

    /// The parts outlive it.
    FixRenderer(RendererParts& parts, const Traits& traits) : parts_(parts), traits_(traits) {}
    virtual const std::string& identOf(const IChartElement& element) const = 0;

    RendererParts& parts_;

private:
    Traits traits_;
};

} // namespace skyvane
