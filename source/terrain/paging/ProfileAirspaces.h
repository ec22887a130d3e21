#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <cstddef>
#include <map>
#include <vector>

namespace skyvane {

class IChartElementSource;

/// Finds the airspaces that a row of positions leads through, a slice of time at a frame.
///
///     airspaces.prepare(positions, leafs, chart);
///     ... airspaces.run(0.02) ... until it is true
///     airspaces.finish();
///     airspaces.getStretches()
///
/// Main thread only, as charts are. The charts mustn't change in between: prepare anew after such a change.
class ProfileAirspaces {
public:
    /// An airspace, from the first of the positions that it touches to the last of a row; one that the way leaves and
    /// enters again has a stretch for each time.
    struct Stretch {
        int element; ///< Its id.
        size_t first;
        size_t last;
    };

    /// Gathers what lies in the leaves of the area tree that hold the positions; no airspace is read yet. The chart
    /// outlives the search.
    void prepare(const std::vector<ChartPosition>& positions, const std::map<int, bool>& leafs,
                 IChartElementSource& chart);
    /// Goes on for about so many seconds. True once all is found.
    bool run(double seconds);
    /// Puts what was found in order, and keeps nothing else.
    void finish();
    /// By their first positions, then by ids.
    const std::vector<Stretch>& getStretches() const { return stretches_; }

private:
    /// Degrees from the first vertex of the airspace, longitudes the short way round.
    struct Place {
        double x, y;
    };

    bool open(int element);
    bool isInside(const Place& place) const;
    bool isCrossed(const Place& from, const Place& to) const;
    Place placeOf(size_t position) const;
    void markFrom(size_t position);
    void close();

    IChartElementSource* chart_ = nullptr;
    std::vector<ChartPosition> positions_;
    std::vector<int> candidates_; ///< Ids, ascending.
    size_t next_ = 0;
    size_t position_ = 0; ///< Within the airspace that is open.
    bool isOpen_ = false;
    ChartPosition origin_;
    std::vector<Place> outline_;
    Place least_{}, most_{};      ///< Around the outline.
    std::vector<char> isTouched_; ///< A flag for each position.
    std::vector<Stretch> stretches_;
};

} // namespace skyvane
