#pragma once

#include "chartmaker/inspect/MapPicture.h"
#include "procedures/course/CourseElement.h"

#include <string>
#include <vector>

namespace skyvane {

/// A picture of paths around a place, north up, to scale: each path a line in a colour of its own with a dot for each
/// of its elements, thin where it only leads to the procedure, and altitudes in feet where they change.
class CoursePlot {
public:
    /// So far to each side of the place.
    CoursePlot(const ChartPosition& centre, double metres);

    /// Where an aircraft is, and its course.
    void aircraft(const ChartPosition& position, double course);
    void path(const CourseList& list);
    void mark(const ChartPosition& position, const std::string& text);
    void line(const ChartPosition& from, const ChartPosition& to, uint32_t colour, double width);
    /// False when the file can't be written.
    bool save(const std::string& path, const std::string& title);

    /// A place in the local frame of the centre: metres east and north.
    ChartPosition at(double east, double north) const;

private:
    void altitudes(const CourseList& list);

    ChartPosition centre_;
    double metres_;
    MapPicture picture_;
    size_t paths_ = 0;
};

/// Writes all pictures of a subject into a folder, which ends in a slash. False when one can't be written.
bool plotNavigation(const std::string& folder);
bool plotApproaches(const std::string& folder);

} // namespace skyvane
