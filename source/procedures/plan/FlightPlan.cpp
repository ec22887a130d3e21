#include "procedures/plan/FlightPlan.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace skyvane {

IProcedure* FlightPlan::get(int index) const {
    return index >= 0 && index < getCount() ? procedures_[static_cast<size_t>(index)].get() : nullptr;
}

int FlightPlan::find(const IProcedure* procedure) const {
    const auto found = std::find_if(procedures_.begin(), procedures_.end(),
                                    [procedure](const auto& each) { return each.get() == procedure; });
    return found == procedures_.end() ? -1 : static_cast<int>(found - procedures_.begin());
}

void FlightPlan::setCurrent(int index) {
    if (get(index))
        current_ = static_cast<size_t>(index);
}

bool FlightPlan::next() {
    if (current_ + 1 >= procedures_.size())
        return false;
    ++current_;
    return true;
}

bool FlightPlan::previous() {
    if (current_ == 0)
        return false;
    --current_;
    return true;
}

void FlightPlan::insert(size_t index, std::unique_ptr<IProcedure> procedure) {
    if (!procedure)
        return;
    procedures_.insert(procedures_.begin() + static_cast<std::ptrdiff_t>(index), std::move(procedure));
    current_ = index;
}

void FlightPlan::add(std::unique_ptr<IProcedure> procedure) {
    insert(procedures_.size(), std::move(procedure));
}

void FlightPlan::addAfterCurrent(std::unique_ptr<IProcedure> procedure) {
    insert(isEmpty() ? 0 : current_ + 1, std::move(procedure));
}

void FlightPlan::addBeforeCurrent(std::unique_ptr<IProcedure> procedure) {
    insert(current_, std::move(procedure));
}

void FlightPlan::replaceCurrent(std::unique_ptr<IProcedure> procedure) {
    if (!procedure)
        return;
    if (isEmpty())
        add(std::move(procedure));
    else
        procedures_[current_] = std::move(procedure);
}

void FlightPlan::deleteCurrent() {
    if (isEmpty())
        return;
    procedures_.erase(procedures_.begin() + static_cast<std::ptrdiff_t>(current_));
    if (current_ >= procedures_.size())
        current_ = isEmpty() ? 0 : procedures_.size() - 1;
}

void FlightPlan::deleteAll() {
    replaceAll({});
}

void FlightPlan::replaceAll(Procedures procedures) {
    procedures_ = std::move(procedures);
    current_ = 0;
}

bool FlightPlan::moveCurrentForwards() {
    if (!next())
        return false;
    std::swap(procedures_[current_ - 1], procedures_[current_]);
    return true;
}

bool FlightPlan::moveCurrentBackwards() {
    if (!previous())
        return false;
    std::swap(procedures_[current_ + 1], procedures_[current_]);
    return true;
}

bool FlightPlan::isTarget(int chartIndex) {
    const IProcedure* current = getCurrent();
    return current->getLocationType() == ProcedureLocation::ChartElement &&
           current->getLocationChartIndex() == chartIndex;
}

void FlightPlan::calculateCourseLists(ChartPosition position, double altitude, double course) {
    if (!std::isfinite(position.longitude) || !std::isfinite(position.latitude) || !std::isfinite(altitude) ||
        !std::isfinite(course))
        return;
    for (size_t i = current_; i < procedures_.size(); ++i) {
        procedures_[i]->calculateCourseList(position, altitude, course);
        const CourseList& list = procedures_[i]->getCourseList();
        if (list.empty())
            continue;
        position = list.back().position;
        altitude = list.back().altitude;
        course = list.back().course;
    }
}

void FlightPlan::updatePosRelated(const AircraftMotion& flight) {
    getCurrent()->updatePosRelated(flight.position, flight.altitude, flight.groundSpeed, flight.heading);
}

bool FlightPlan::advanceWhenFinished() {
    return getCurrent()->shallSwitchToNextProc() && next();
}

void FlightPlan::OnChartChanged(IChartElementSource* charts) {
    for (const auto& procedure : procedures_)
        procedure->OnChartChanged(charts);
}

} // namespace skyvane
