#pragma once

#include "displays/IPanel.h"
#include "displays/information/SideViewButtons.h"
#include "displays/informationmath/SideLabels.h"
#include "displays/informationmath/SideRange.h"
#include "displays/informationmath/SideViewSettings.h"
#include "displays/vision/bars/BarWords.h"

namespace skyvane {

struct PointCall;
struct TouchEvent;

/// The course ahead from the side: the ground below it, the airspaces around it, and the aircraft on it. It answers
/// whether the aircraft clears the ground and those airspaces.
///
/// The ground comes from ProcedureManager, which asks the terrain for it whenever the plan's paths are made anew. What
/// stands still, nearly everything, is made anew only when what it shows has changed.
class SideViewPanel : public IPanel {
public:
    SideViewPanel(Context* context, const SideViewSettings& settings);
    ~SideViewPanel() override;

    void OnPageChange() override;
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent event) override;
    std::string getName() override { return "SideViewPanel"; }
    void OnChartChanged() override;
    void OnProcedureChanged() override { range_.center(); }
    void OnHideGUI() override { buttons_.hide(); }

    /// Pixels of the screen, for a point of the profile and an altitude in metres.
    irr::core::vector2d<int> transfromToScreenCoords(const PointCall* call, unsigned index, double height) const;

    /// How often what stands still was made anew.
    unsigned getRebuilds() const { return rebuilds_; }
    const SideScene& getScene() const { return scene_; }
    const SideRange& getRange() const { return range_; }

private:
    /// The search for airspaces along the profile.
    enum class Search { Off, Wanted, Running, Done };

    /// Measures in the panel's font.
    class Measure : public IWordMeasure {
    public:
        explicit Measure(BarWords& words) : words_(words) {}
        double measure(const ShortText& text, double height) override { return words_.measure(text, height); }

    private:
        BarWords& words_;
    };

    /// All that the part that stands still depends on.
    struct Key {
        irr::core::rect<int> rect, buttons;
        ShapeRect aircraft, altitude, notes;
        double top = 0.0, first = 0.0, shown = 0.0;
        unsigned profile = 0, contents = 0;
        int selected = -1, selectedTenths = 0;
        bool metric = false;
        const void* font = nullptr;

        bool operator==(const Key& other) const;
    };

    void takeProfile(RouteProfile& profile);
    void searchAirspaces(RouteProfile& profile);
    void updateScene(const RouteProfile& profile);
    void updateAxes(const RouteProfile& profile);
    Key makeKey() const;
    void rebuild();

    void drawBackground();
    void drawScene();
    void drawTerrain();
    void drawMoving();
    void drawLayer(const BarCanvas& canvas, BarCanvas::Level level);
    void drawMessage(const wchar_t* words, bool inBox);
    /// What to say while there is nothing to show.
    const wchar_t* explainMissingProfile() const;
    void showButtons();

    bool processMouse(const irr::SEvent::SMouseInput& mouse);
    bool processTouch(const TouchEvent& touch);
    bool press(SideButton::Kind button);

    SideViewSettings settings_;
    SideViewButtons buttons_;
    BarWords words_;
    Measure measure_;
    BarCanvas still_, moving_;
    SideTools stillTools_, movingTools_;
    SideLabels labels_;
    ShapePath upper_, lower_;

    irr::core::rect<int> rect_;
    SideScene scene_;
    Key key_;
    unsigned rebuilds_ = 0;
    SideRange range_;
    SidePinch pinch_;
    RoutePlaceFinder finder_;

    // Of the profile that was taken.
    std::optional<unsigned> profileNumber_;
    double lastIndex_ = 0.0; ///< Where the aircraft was last along it: what is shown stays while nobody knows.
    unsigned contents_ = 0;  ///< Counts the changes of what lies along it.
    Search search_ = Search::Off;
    bool showsAirspaces_ = false; ///< Of this profile, and of those to come.
    bool looksAhead_ = false;
    std::vector<SideStop> stops_;
    std::vector<SideAirspace> airspaces_;
};

} // namespace skyvane
