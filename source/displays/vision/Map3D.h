#pragma once

#include "displays/IPanel.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/instruments/DialFlagView.h"
#include "displays/vision/AircraftView.h"
#include "displays/vision/ElementScene.h"
#include "displays/vision/HighwayView.h"
#include "displays/vision/LabelView.h"
#include "displays/vision/SceneButtons.h"
#include "displays/vision/SceneFlags.h"
#include "displays/vision/SceneStage.h"
#include "displays/vision/SkyView.h"
#include "displays/vision/SymbolView.h"
#include "displays/vision/TerrainView.h"
#include "displays/vision/TrafficView.h"
#include "displays/vision/VisionReader.h"
#include "displays/vision/bars/PfdBars.h"
#include "displays/visionmath/OrbitControl.h"
#include "displays/visionmath/PfdReadings.h"
#include "displays/visionmath/VelocityEstimator.h"
#include "displays/visionmath/VisionSettings.h"

namespace skyvane {

/// The synthetic view: the world as it would look from the aircraft, or the aircraft from behind, whatever the weather
/// outside. Over it stand the symbols and bars of a primary flight display.
///
/// What can't be believed isn't shown as if it could: without a position, an altitude or a heading there is no ground
/// but the plain one of the sky's picture, without an attitude no pilot's view; doubtful sources turn lines and
/// aircraft yellow.
class Map3D : public IPanel {
public:
    /// `section` is where the panel's options are stored.
    Map3D(Context* context, const VisionSettings& settings, std::string section);

    void OnPageChange() override;
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent event) override;
    std::string getName() override { return "3D-Map"; }
    void OnChartChanged() override { elements_.invalidate(); }
    void OnProcedureChanged() override { elements_.invalidate(); }
    void OnHideGUI() override;
    void OnTerrainNodesDelete() override { terrain_.dropNearMesh(); }
    void OnTerrainMeshExchanged() override { terrain_.takeNearMesh(); }
    void OnWideTerrainNodesDelete() override { terrain_.dropWideMesh(); }
    void OnWideTerrainMeshExchanged() override { terrain_.takeWideMesh(); }
    void OnProcedureNodesDelete() override { highway_.dropMesh(); }
    void OnProcedureMeshExchanged() override { highway_.takeMesh(); }
    void applyOptimizedSettings(OptimizedSettings settings) override;

    /// What the preset left of the user's switches.
    const VisionSwitches& getSwitches() const { return effective_; }
    const VisionSettings& getSettings() const { return settings_; }
    bool isFirstPerson() const { return firstPerson_; }
    /// What the renderers of chart elements fill.
    ElementScene& getElements() { return elements_; }

private:
    void updatePose();
    bool isPlaceKnown() const;
    void renderScene(const irr::core::rect<int>& seen);
    void renderAircraft();
    void renderGlass();
    irr::video::SColor tint() const;
    void renderBars();

    bool processMouse(const irr::SEvent::SMouseInput& mouse);
    bool processTouch(const irr::SEvent& event);
    void tap(irr::core::vector2d<int> place);
    void openOptions();

    VisionSettings settings_;
    std::string section_;
    VisionSwitches effective_;
    int preset_ = OPTIMIZED_DEFAULT;

    Drawer2D* drawer_;
    SceneStage stage_;
    SkyView sky_;
    TerrainView terrain_;
    HighwayView highway_;
    ElementScene elements_;
    LabelView labels_;
    AircraftView aircraft_;
    TrafficView traffic_;
    SymbolView symbols_;
    SceneFlags flags_;
    PfdBars bars_;
    SceneButtons buttons_;

    OrbitControl orbit_;
    TapOrDrag finger_;
    PinchTracker pinch_;
    VelocityEstimator velocity_;

    // Of the frame.
    irr::core::rect<int> rect_;
    VisionReadings readings_;
    PfdReadings barReadings_;
    ViewPose pose_;
    double shownHeight_ = 0.0;
    bool firstPerson_ = false;
};

} // namespace skyvane
