#pragma once

#include "displays/labels/ConcurrentRectangleGradientDescent.h"
#include "displays/map/RGDContent.h"
#include "displays/mapmath/MapView.h"
#include "gui/skin/ButtonTexture.h"

#include <irrlicht.h>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class FlexibleFont;
class Map2D;

/// The labels of a map, placed clear of each other by a solver on the pool while the map moves on.
///
/// Labels gather while a set of tiles is drawn, and take the place of the shown ones when it is complete. One that was
/// on the map before begins where it stood, so that labels stay calm. Solved labels lie on the chart; a turn of the
/// view by more than 5 degrees solves them again. Main thread only.
class MapLabels {
public:
    MapLabels(Map2D& map, const MapView& view);
    ~MapLabels();
    MapLabels(const MapLabels&) = delete;
    MapLabels& operator=(const MapLabels&) = delete;

    /// A new set of tiles begins.
    void beginSet();
    void add(RGDContent content);
    /// The set of tiles is complete: what was gathered is shown and solved from now on.
    void finishSet();
    /// Gathers the labels of a frame that is drawn directly: the shown ones go when the frame differs from the last.
    void finishFrame();
    void clear();

    /// Once a frame: takes what is solved, and starts the solver where that is needed.
    void update();
    /// In the panel's viewport, whose place on the screen is told. What would lie under one of the plates, in pixels of
    /// the panel, is left out: words on words can't be read.
    void draw(const irr::core::rect<int>& panel, const std::vector<irr::core::rect<int>>& plates);
    irr::core::rect<int> calcRect(const RGDContent& content) const;
    const std::vector<RGDContent>& getShown() const { return shown_; }
    bool isSolving() const { return isSolving_ || isStartWanted_; }

    RGDContent makeText(const std::string& text, irr::video::SColor color, float scale,
                        irr::video::SColor background) const;

private:
    using Contents = std::vector<RGDContent>;
    using Pair = RectangleGradientDescent::Pair;

    void show(Contents& contents);
    void keepPlace(RGDContent& content, const RGDContent& before) const;
    void startSolver();
    void takeSolved();
    void glide();
    /// From a symbol to a place in pixels of the view, as it is turned for labels.
    Pair offsetInView(const ChartPosition& symbol, const ChartPosition& place) const;
    void drawTexts(const irr::core::rect<int>& panel);

    Map2D& map_;
    const MapView& view_;
    FlexibleFont* font_;
    ButtonTexture ground_;
    Contents gathered_;
    Contents shown_;
    ConcurrentRectangleGradientDescent solver_;
    double solvedHeading_ = 0.0; ///< What lay at the top when the labels were solved.
    double shownMetresPerPixel_ = 0.0;
    Pair solvedPerPixel_; ///< Degrees.
    double lastGlide_ = 0.0;
    bool isStartWanted_ = false;
    bool isSolving_ = false;
    std::vector<size_t> drawn_; ///< Of this frame, for its texts.
};

} // namespace skyvane
