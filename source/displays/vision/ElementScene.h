#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/engine/EngineRef.h"
#include "displays/visionmath/SceneShapes.h"
#include "displays/visionmath/VisionSettings.h"

#include <array>
#include <cmath>
#include <irrlicht.h>
#include <string>
#include <vector>

namespace skyvane {

class Context;
class Map3D;
class SceneStage;
class TerrainView;

/// A name over a place of a scene.
struct SceneLabel {
    static constexpr size_t mostCharacters = 15;

    irr::core::vector3d<double> place; ///< Of the collection's frame, the foot of the label's pole.
    std::array<wchar_t, mostCharacters + 1> text{};
    irr::core::dimension2d<irr::u32> size{0, 0}; ///< Of the text, pixels at the font's scale 1.
    irr::video::SColor color;
    int importance = 0;
    int id = 0;
};

/// The chart elements of a scene: airports on the ground, obstacles, fixes. They are collected now and then, when the
/// aircraft has gone on or something else has changed, into one mesh and a list of labels that frames only draw.
///
/// The renderers of the elements' kinds fill it: map->getElements().getShapes(), .getPlace(), .addLabel(). Main thread.
class ElementScene {
public:
    explicit ElementScene(Context* context);

    /// What is shown may have changed: it is collected anew.
    void invalidate() { valid_ = false; }
    /// Collects when it is time to. The terrain gives the ground to lie on.
    void update(Map3D& map, const TerrainView& terrain, const ChartPosition& aircraft, double heightMetres,
                double sightMetres);
    void draw(SceneStage& stage, const ChartPosition& aircraft);
    const std::vector<SceneLabel>& getLabels() const { return labels_; }
    /// The origin of labels and shapes.
    const ChartPosition& getOrigin() const { return origin_; }

    // For the renderers, while it is collected.

    /// Lies on the ground, and stands on it.
    SceneShapes& getGroundShapes() { return ground_; }
    SceneShapes& getShapes() { return shapes_; }
    SceneShapes::Place getPlace(const ChartPosition& position, double heightMetres) const;
    /// The ground as it is drawn at a place of the scene; `otherwise` beyond the near mesh.
    double getGround(const SceneShapes::Place& place, double otherwise) const;
    double getAircraftHeight() const { return heightMetres_; }
    /// Horizontally from the aircraft.
    static double getDistance(const SceneShapes::Place& place) { return std::hypot(place.X, place.Z); }
    /// A label over a place; one that terrain hides isn't taken. Of a long text the beginning is shown.
    void addLabel(const SceneShapes::Place& place, const std::string& text, irr::video::SColor color, int importance,
                  int id);

private:
    bool isWorn(const TerrainView& terrain, const ChartPosition& aircraft, double heightMetres) const;
    void renderMapElements(Map3D& map, double sightMetres);
    bool isHidden(const SceneShapes::Place& place) const;
    static void fill(irr::scene::SMeshBuffer& mesh, const SceneShapes& shapes);

    Context* context_;
    bool valid_ = false;
    unsigned collectedMilliseconds_ = 0;
    unsigned generation_ = 0;
    ChartPosition origin_;
    double heightMetres_ = 0.0;
    const TerrainView* terrain_ = nullptr; ///< While it is collected.
    SceneShapes ground_, shapes_;
    std::vector<SceneLabel> labels_;
    EngineRef<irr::scene::SMeshBuffer> groundMesh_, mesh_;
    irr::video::SMaterial groundMaterial_, material_;
};

} // namespace skyvane
