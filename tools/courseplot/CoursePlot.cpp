#include "courseplot/CoursePlot.h"

#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"
#include "core/text/Numbers.h"

#include <cmath>
#include <iterator>

namespace skyvane {
namespace {

constexpr int PictureWidth = 1000;
constexpr uint32_t Colours[] = {0xffc2185b, 0xff1565c0, 0xff2e7d32, 0xffe65100,
                                0xff6a1b9a, 0xff00838f, 0xff5d4037, 0xff827717};
constexpr uint32_t Ink = 0xff202020;
constexpr double MilesGrid = 1.0;
/// An altitude is written anew when it has changed by so much.
constexpr double ToldFeet = 150.0;

MapPicture::Box boxAround(const ChartPosition& centre, double metres) {
    const ChartPosition low = Vector3df642ChartPosition(centre, {-metres, 0.0, -metres});
    const ChartPosition high = Vector3df642ChartPosition(centre, {metres, 0.0, metres});
    return {low.longitude, low.latitude, high.longitude, high.latitude};
}

} // namespace

CoursePlot::CoursePlot(const ChartPosition& centre, double metres)
    : centre_(centre), metres_(metres), picture_(boxAround(centre, metres), PictureWidth, 0xffffffff) {
    const double step = MilesGrid * MetresPerNauticalMile * (metres > 30000.0 ? 10.0 : 1.0);
    for (double place = -std::floor(metres / step) * step; place <= metres; place += step) {
        picture_.line({at(place, -metres), at(place, metres)}, false, 0xffe3e7ec, 1.0);
        picture_.line({at(-metres, place), at(metres, place)}, false, 0xffe3e7ec, 1.0);
    }
}

ChartPosition CoursePlot::at(double east, double north) const {
    return Vector3df642ChartPosition(centre_, {east, 0.0, north});
}

void CoursePlot::aircraft(const ChartPosition& position, double course) {
    const MapPicture::Point place = picture_.place(position);
    constexpr double size = 14.0;
    const auto corner = [&](double turn, double length) {
        const double radians = (course + turn) / DegreesPerRadian;
        return MapPicture::Point{place.x + length * std::sin(radians), place.y - length * std::cos(radians)};
    };
    picture_.polygon({corner(0.0, size), corner(145.0, size), corner(215.0, size)}, 0xffffc400, Ink, 1.0);
}

void CoursePlot::path(const CourseList& list) {
    const uint32_t colour = Colours[paths_++ % std::size(Colours)];
    for (auto a = list.begin(); a != list.end(); ++a) {
        const auto b = std::next(a);
        picture_.circle(picture_.place(a->position), 2.5, colour, colour, 0.5);
        if (b != list.end())
            picture_.line({a->position, b->position}, false, colour, a->transition && b->transition ? 1.2 : 2.6);
    }
    altitudes(list);
}

void CoursePlot::altitudes(const CourseList& list) {
    double told = 1e9;
    for (const CourseElement& element : list) {
        const double feet = element.altitude / MetresPerFoot;
        if (std::fabs(feet - told) < ToldFeet)
            continue;
        told = feet;
        MapPicture::LabelStyle style;
        style.size = 11.0;
        style.colour = 0xff607080;
        picture_.label(picture_.place(element.position), toText(roundHalfAway(feet)), style);
    }
}

void CoursePlot::mark(const ChartPosition& position, const std::string& text) {
    const MapPicture::Point place = picture_.place(position);
    picture_.circle(place, 6.0, 0x00000000, Ink, 1.5);
    MapPicture::LabelStyle style;
    style.size = 15.0;
    style.isAlways = true;
    picture_.label({place.x + 4.0, place.y}, text, style);
}

void CoursePlot::line(const ChartPosition& from, const ChartPosition& to, uint32_t colour, double width) {
    picture_.line({from, to}, false, colour, width);
}

bool CoursePlot::save(const std::string& path, const std::string& title) {
    MapPicture::LabelStyle style;
    style.size = 20.0;
    style.isAlways = true;
    picture_.label({10.0, 20.0}, title, style);
    return picture_.save(path);
}

} // namespace skyvane
