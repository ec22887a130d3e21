#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <irrlicht.h>
#include <vector>

namespace skyvane {

class IArea;
class IChartElement;
class Map2D;
class MapContents;
class MapView;

/// What lies under the cross in the middle of a map: the elements that a tap there may mean, the likeliest first.
/// Main thread only.
class MapSelection {
public:
    /// Stands for no element.
    static constexpr int None = -9999999;

    MapSelection(Map2D& map, const MapView& view, const MapContents& contents)
        : map_(map), view_(view), contents_(contents) {}

    /// Looks again when the cross has moved by more than 2 metres, or when the chart has changed.
    void update();
    void forget();
    void lookAgain() { isStale_ = true; }
    /// The following candidate becomes the selection.
    void next();
    bool hasSeveral() const { return candidates_.size() > 1; }
    /// The selected element's id, or None.
    int getIndex() const { return candidates_.empty() ? None : candidates_[current_].index; }
    /// Null without one. To be used at once.
    IChartElement* getElement() const;
    /// Where the cross stands.
    ChartPosition getPosition() const;
    /// Once more, over everything, in the panel's viewport.
    void draw();

private:
    struct Candidate {
        int priority;
        int index;
    };
    static bool pairLess(const Candidate& a, const Candidate& b);

    void find();
    void checkAreaSelection(const IArea& area);

    Map2D& map_;
    const MapView& view_;
    const MapContents& contents_;
    std::vector<Candidate> candidates_;
    size_t current_ = 0;
    ChartPosition lookedAt_{-1000.0, 0.0};
    double lookedAtSeconds_ = 0.0;
    bool isStale_ = true;
};

} // namespace skyvane
