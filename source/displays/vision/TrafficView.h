#pragma once

#include "displays/instruments/PanelTexture.h"
#include "displays/shapes/ShapeMesh.h"
#include "displays/vision/AircraftView.h"
#include "gui/font/CachedText.h"

#include <array>
#include <irrlicht.h>
#include <vector>

namespace skyvane {

class Context;
class Drawer2D;
class SceneStage;
struct ChartPosition;
struct TrafficElement;

/// The other aircraft: a mesh each where it flies, and over it a frame with how many hundreds of feet (or tens of
/// metres) it is above or below. The nearest ones, when there are very many. Main thread only.
class TrafficView {
public:
    static constexpr size_t mostShown = 40;

    explicit TrafficView(Context* context);

    /// Also chooses whom to show. The aircraft's own height in metres.
    void drawMeshes(SceneStage& stage, const ChartPosition& origin, double heightMetres, double sightMetres);
    /// Those of the last drawMeshes, on the glass.
    void drawSymbols(const SceneStage& stage, const irr::core::rect<int>& rect);

private:
    struct Target {
        irr::core::vector3d<double> place; ///< Of the scene.
        double metres = 0.0;               ///< From the aircraft.
        double aboveMetres = 0.0;
        bool isAltitudeKnown = false;
        double trackDegrees = 0.0;
    };
    /// The own altimeter of this frame.
    struct Altimeter {
        double metres = 0.0, seaLevelMillibars = 0.0;
        bool isShown = false; ///< Whether it can be believed.
    };
    Altimeter readAltimeter() const;
    bool locate(const TrafficElement& element, const Altimeter& altimeter, const ChartPosition& origin,
                double heightMetres, Target& target) const;

    Context* context_;
    Drawer2D* drawer_;
    PanelTexture picture_;
    AircraftView mesh_;
    std::vector<Target> targets_;
    ShapeMesh shapes_;
    std::array<CachedText, mostShown> texts_;
};

} // namespace skyvane
