#include "procedures/preview/CoursePicture.h"

#include "chart/geodesy/EarthConstants.h"
#include "core/geometry/LineClipping.h"

#include <cmath>
#include <iterator>

namespace skyvane {
namespace {

using Line = CoursePicture::Line;

double lengthOf(const Line& line) {
    return std::hypot(line.to.X - line.from.X, line.to.Y - line.from.Y);
}

CoursePicture::Arrow arrowOn(const Line& line, double share) {
    const double dx = line.to.X - line.from.X, dy = line.to.Y - line.from.Y;
    return {{line.from.X + static_cast<int>(std::lround(dx * share)),
             line.from.Y + static_cast<int>(std::lround(dy * share))},
            std::atan2(dx, -dy) * DegreesPerRadian,
            line.transition};
}

} // namespace

CoursePicture pictureOf(const CourseList& course, const PreviewFrame& frame, int arrowSpacing) {
    CoursePicture picture;
    double toArrow = arrowSpacing / 2.0;
    for (auto from = course.begin(), to = course.empty() ? from : std::next(from); to != course.end(); ++from, ++to) {
        Line line{frame.toPixels(from->position), frame.toPixels(to->position), from->transition || to->transition};
        if (!clipline(line.from.X, line.from.Y, line.to.X, line.to.Y, frame.getPicture()))
            continue;
        const double length = lengthOf(line);
        if (length < 1.0)
            continue;
        picture.lines.push_back(line);
        for (; toArrow < length; toArrow += arrowSpacing)
            picture.arrows.push_back(arrowOn(line, toArrow / length));
        toArrow -= length;
    }
    return picture;
}

std::vector<ChartPosition> placesOf(const CourseList& course) {
    std::vector<ChartPosition> places;
    for (const bool wanted : {false, true}) {
        for (const CourseElement& element : course)
            if (element.transition == wanted)
                places.push_back(element.position);
        if (places.size() > 1)
            break;
    }
    return places;
}

} // namespace skyvane
