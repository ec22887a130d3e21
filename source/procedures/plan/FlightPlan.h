#pragma once

#include "procedures/framework/NullProcedure.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace skyvane {

/// The procedures that a pilot means to fly, one after the other, and the one that is flown now.
///
///     FlightPlan plan;
///     plan.add(factory.Create());
///     plan.calculateCourseLists(position, altitude, course);
///     plan.updatePosRelated(flight);                       // each frame
///     if (plan.advanceWhenFinished())
///         plan.calculateCourseLists(...);
///
/// Every change keeps a current procedure as long as there is any; paths are made anew only when asked for. Those
/// before the current one keep the path that was flown. Main thread only.
class FlightPlan {
public:
    using Procedures = std::vector<std::unique_ptr<IProcedure>>;

    const Procedures& getProcedures() const { return procedures_; }
    int getCount() const { return static_cast<int>(procedures_.size()); }
    bool isEmpty() const { return procedures_.empty(); }
    /// Null for an index out of range.
    IProcedure* get(int index) const;
    /// -1 for one that the plan doesn't have.
    int find(const IProcedure* procedure) const;
    /// A NullProcedure for an empty plan. Valid until the plan changes.
    IProcedure* getCurrent() { return isEmpty() ? &null_ : procedures_[current_].get(); }
    /// 0 for an empty plan.
    int getCurrentIndex() const { return static_cast<int>(current_); }
    /// An index out of range changes nothing.
    void setCurrent(int index);
    /// The next or previous one becomes current; false at the ends.
    bool next();
    bool previous();

    // What is added becomes current.
    void add(std::unique_ptr<IProcedure> procedure);
    void addAfterCurrent(std::unique_ptr<IProcedure> procedure);
    void addBeforeCurrent(std::unique_ptr<IProcedure> procedure);
    /// Nothing happens to an empty plan but that it gets the procedure.
    void replaceCurrent(std::unique_ptr<IProcedure> procedure);
    /// The next one becomes current, or the last.
    void deleteCurrent();
    void deleteAll();
    /// All at once; the first becomes current.
    void replaceAll(Procedures procedures);

    /// Moves the current one a place towards the end, or the beginning. It stays current; false at the ends.
    bool moveCurrentForwards();
    bool moveCurrentBackwards();

    /// The current procedure leads to that element of the charts.
    bool isTarget(int chartIndex);

    /// Makes the paths from the current procedure on: each begins where the one before it ends, the first one here.
    /// Metres and degrees true; nothing happens for values that aren't finite.
    void calculateCourseLists(ChartPosition position, double altitude, double course);
    void updatePosRelated(const AircraftMotion& flight);
    /// Goes on when the current procedure has reached its end and there is another one; true when it has.
    bool advanceWhenFinished();
    /// See IProcedure::OnChartChanged.
    void OnChartChanged(IChartElementSource* charts);

private:
    void insert(size_t index, std::unique_ptr<IProcedure> procedure);

    NullProcedure null_;
    Procedures procedures_;
    size_t current_ = 0;
};

} // namespace skyvane
