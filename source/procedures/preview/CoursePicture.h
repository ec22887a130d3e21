#pragma once

#include "procedures/course/CourseElement.h"
#include "procedures/preview/PreviewFrame.h"

#include <vector>

namespace skyvane {

/// A path on a small picture: its lines as far as they lie on it, and arrows that tell the direction of flight.
struct CoursePicture {
    struct Line {
        PreviewFrame::Point from;
        PreviewFrame::Point to;
        bool transition; ///< Only leads to the procedure proper.
    };
    struct Arrow {
        PreviewFrame::Point place;
        double courseDegrees; ///< On the picture, clockwise from above.
        bool transition;
    };
    std::vector<Line> lines;
    std::vector<Arrow> arrows;
};

/// With an arrow about every so many pixels along the path.
CoursePicture pictureOf(const CourseList& course, const PreviewFrame& frame, int arrowSpacing);

/// The places that a picture of a path is to hold: those of the procedure proper, the way there as far as there is
/// room. All where nothing is proper; none for an empty path.
std::vector<ChartPosition> placesOf(const CourseList& course);

} // namespace skyvane
