#include "chart/geodesy/EarthConstants.h"
#include "displays/gauges/SegmentFormat.h"
#include "displays/informationmath/LabelSpace.h"
#include "displays/informationmath/SideDrawing.h"
#include "displays/visionmath/bars/PfdFormat.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double sizeShare = 3.4; ///< The aircraft's length, in heights of a digit.
constexpr double vectorSeconds = 300.0;
constexpr double boxStep = 12.0;

/// An aircraft from its right side: parts of it, nose to the right, y downwards, in lengths of the aircraft.
struct Part {
    ShapePoint corners[7];
    size_t count;
    bool isDark;
};
const Part parts[] = {
    {{{-0.30, -0.06}, {-0.42, -0.26}, {-0.52, -0.26}, {-0.50, 0.0}}, 4, false},
    {{{0.22, -0.04}, {0.08, -0.17}, {-0.12, -0.17}, {-0.28, -0.04}}, 4, false},
    {{{0.49, 0.01}, {0.42, -0.07}, {-0.40, -0.07}, {-0.51, -0.04}, {-0.14, 0.10}, {0.32, 0.10}, {0.47, 0.06}},
     7,
     false},
    {{{0.15, -0.06}, {0.06, -0.14}, {-0.08, -0.14}, {-0.10, -0.06}}, 4, true},
    {{{0.14, 0.02}, {-0.16, 0.02}, {-0.18, 0.06}, {0.12, 0.06}}, 4, true},
    {{{0.50, -0.12}, {0.53, -0.12}, {0.53, 0.18}, {0.50, 0.18}}, 4, false},
};

uint32_t inkOf(const SideScene& scene) {
    if (scene.place && scene.place->distanceMetres > offCourseMetres)
        return SideColor::dim;
    return scene.readings.isDoubtful ? SideColor::doubtful : SideColor::ink;
}

ShortText altitudeText(const SideScene& scene) {
    return formatAltitude(*scene.readings.altitudeMetres, scene.metric).append(scene.metric ? L" m" : L" ft");
}

/// What the pilot must know of the picture.
struct Notes {
    struct Note {
        ShortText text;
        uint32_t argb;
    };
    std::array<Note, 3> notes;
    size_t count = 0;

    explicit Notes(const SideScene& scene) {
        if (!scene.readings.position)
            notes[count++] = {L"NO POSITION", SideColor::failed};
        if (!scene.readings.altitudeMetres)
            notes[count++] = {L"NO ALTITUDE", SideColor::failed};
        if (scene.place && scene.place->distanceMetres > offCourseMetres)
            notes[count++] = {formatFixDistance(scene.place->distanceMetres / MetresPerNauticalMile, scene.metric)
                                  .append(L" OFF COURSE"),
                              SideColor::doubtful};
    }
};

/// One below the other in the upper left corner.
ShapeRect placeOfNote(const SideScene& scene, IWordMeasure& measure, const Notes& notes, size_t index) {
    const double h = scene.textHeight;
    ShapePoint corner = freeRectOf(scene).UpperLeftCorner;
    corner.Y = std::max(corner.Y, scene.buttons.LowerRightCorner.Y);
    corner += ShapePoint(0.4 * h, 0.4 * h + 2.3 * h * static_cast<double>(index));
    return {corner.X, corner.Y, corner.X + measure.measure(notes.notes[index].text, h) + h, corner.Y + 1.9 * h};
}

/// The box of the aircraft's altitude: above it where there is room, else below.
ShapeRect altitudeBox(const SideScene& scene, const ShapePoint& aircraft, IWordMeasure& measure) {
    const ShapeRect free = freeRectOf(scene);
    const double h = scene.textHeight, high = 1.9 * h, away = 0.38 * sizeShare * h + 2.0;
    const double wide = measure.measure(altitudeText(scene), h) + h;
    const double left = std::clamp(aircraft.X - 0.5 * wide, free.UpperLeftCorner.X,
                                   std::max(free.UpperLeftCorner.X, free.LowerRightCorner.X - wide));
    const auto at = [&](double top) { return ShapeRect(left, top, left + wide, top + high); };
    const Notes notes(scene);
    double underNotes = 0.0;
    const auto isFree = [&](const ShapeRect& box) {
        bool isClear = true;
        for (size_t i = 0; i < notes.count; ++i) {
            const ShapeRect note = placeOfNote(scene, measure, notes, i);
            underNotes = note.LowerRightCorner.Y + 2.0;
            isClear = isClear && !doMeet(box, note);
        }
        return isClear;
    };
    const ShapeRect above = at(aircraft.Y - away - high), below = at(aircraft.Y + away);
    const double ceiling = std::max(free.UpperLeftCorner.Y, scene.buttons.LowerRightCorner.Y);
    if (above.UpperLeftCorner.Y >= ceiling && isFree(above))
        return above;
    return isFree(below) ? below : at(underNotes);
}

ShapeRect stepwise(const ShapeRect& place) {
    const auto down = [](double value) { return std::floor(value / boxStep) * boxStep; };
    const auto up = [](double value) { return std::ceil(value / boxStep) * boxStep; };
    return {down(place.UpperLeftCorner.X), down(place.UpperLeftCorner.Y), up(place.LowerRightCorner.X),
            up(place.LowerRightCorner.Y)};
}

void addAircraft(SideTools& tools, const SideScene& scene, const ShapePoint& middle) {
    const double angle = scene.readings.getFlightPathDegrees() / DegreesPerRadian;
    const double size = sizeShare * scene.textHeight, sine = std::sin(angle), cosine = std::cos(angle);
    ShapeMesh& mesh = tools.canvas.layers[BarCanvas::Glass].shapes;
    const auto take = [&](const Part& part) {
        tools.path.clear();
        for (size_t i = 0; i < part.count; ++i) {
            const ShapePoint& c = part.corners[i];
            tools.path.emplace_back(middle.X + size * (c.X * cosine + c.Y * sine),
                                    middle.Y + size * (c.Y * cosine - c.X * sine));
        }
    };
    for (const Part& part : parts) {
        take(part);
        addStroke(mesh, tools.path, {3.5f, 0xff060a10, true, 0.0f, 0.0f}, scene.axes.panel);
    }
    for (const Part& part : parts) {
        take(part);
        addConvex(mesh, tools.path, part.isDark ? 0xff2c3a4e : inkOf(scene));
    }
}

/// Where the aircraft will be if it goes on like this. What the course says of the ground is seen between the dashes.
void addVector(SideTools& tools, const SideScene& scene, const ShapePoint& from) {
    const std::optional<double> slope = scene.readings.getSlope();
    if (!slope || scene.place->distanceMetres > offCourseMetres)
        return;
    const double metres = *scene.readings.groundMetresPerSecond * vectorSeconds;
    const ShapePoint to = scene.axes.toScreen(scene.place->index + metres / std::max(scene.axes.stepMetres, 1e-3),
                                              *scene.readings.altitudeMetres + *slope * metres);
    tools.path.clear();
    tools.path.push_back(from);
    tools.path.push_back(to);
    ShapeMesh& mesh = tools.canvas.layers[BarCanvas::Box].shapes;
    addStroke(mesh, tools.path, {4.5f, SideColor::casing, false, 10.0f, 10.0f}, scene.axes.panel);
    addStroke(mesh, tools.path, {2.5f, SideColor::vector, false, 10.0f, 10.0f}, scene.axes.panel);
}

void addAltitude(SideTools& tools, const SideScene& scene, const ShapePoint& aircraft) {
    BarText words;
    words.text = altitudeText(scene);
    words.height = scene.textHeight;
    words.argb = inkOf(scene);
    const ShapeRect box = altitudeBox(scene, aircraft, tools.measure);
    words.place = ShapePoint(middleX(box), middleY(box));
    tools.pen.rect(BarCanvas::Glass, box, SideColor::box);
    tools.pen.frame(BarCanvas::Glass, box, 1.5, words.argb);
    tools.pen.text(BarCanvas::Glass, words);
}

/// A line across the picture, where the aircraft is but nobody knows how high.
void addPlaceLine(SideTools& tools, const SideScene& scene) {
    const double x = scene.axes.xOf(scene.place->index);
    tools.path.clear();
    tools.path.emplace_back(x, scene.axes.panel.UpperLeftCorner.Y);
    tools.path.emplace_back(x, scene.axes.panel.LowerRightCorner.Y);
    addStroke(tools.canvas.layers[BarCanvas::Box].shapes, tools.path, {2.0f, inkOf(scene), false, 4.0f, 6.0f},
              scene.axes.panel);
}

void addNotes(SideTools& tools, const SideScene& scene) {
    const Notes notes(scene);
    for (size_t i = 0; i < notes.count; ++i) {
        const ShapeRect box = placeOfNote(scene, tools.measure, notes, i);
        BarText words;
        words.text = notes.notes[i].text;
        words.place = ShapePoint(middleX(box), middleY(box));
        words.height = scene.textHeight;
        words.argb = notes.notes[i].argb;
        tools.pen.rect(BarCanvas::Glass, box, SideColor::box);
        tools.pen.frame(BarCanvas::Glass, box, 1.5, words.argb);
        tools.pen.text(BarCanvas::Glass, words);
    }
}

} // namespace

std::optional<ShapePoint> placeSideAircraft(const SideScene& scene) {
    if (!scene.place || !scene.readings.altitudeMetres)
        return std::nullopt;
    ShapePoint middle = scene.axes.toScreen(scene.place->index, *scene.readings.altitudeMetres);
    const ShapeRect& panel = scene.axes.panel;
    const double reach = 0.58 * sizeShare * scene.textHeight, flat = 0.32 * sizeShare * scene.textHeight;
    const auto within = [](double value, double low, double high) {
        return low < high ? std::clamp(value, low, high) : 0.5 * (low + high);
    };
    middle.X = within(middle.X, panel.UpperLeftCorner.X + reach, panel.LowerRightCorner.X - reach);
    middle.Y = within(middle.Y, panel.UpperLeftCorner.Y + flat, panel.LowerRightCorner.Y - flat);
    return middle;
}

void blockForFlight(SideScene& scene, IWordMeasure& measure) {
    scene.aircraftBox = scene.altitudeBox = scene.notesBox = ShapeRect();
    const Notes notes(scene);
    for (size_t i = 0; i < notes.count; ++i) {
        const ShapeRect note = stepwise(placeOfNote(scene, measure, notes, i));
        if (i == 0)
            scene.notesBox = note;
        scene.notesBox.addInternalPoint(note.UpperLeftCorner);
        scene.notesBox.addInternalPoint(note.LowerRightCorner);
    }
    const std::optional<ShapePoint> middle = placeSideAircraft(scene);
    if (!middle)
        return;
    const double size = sizeShare * scene.textHeight;
    scene.aircraftBox =
        stepwise({middle->X - 0.55 * size, middle->Y - 0.3 * size, middle->X + 0.55 * size, middle->Y + 0.3 * size});
    scene.altitudeBox = stepwise(altitudeBox(scene, *middle, measure));
}

void addSideFlight(SideTools& tools, const SideScene& scene) {
    if (const std::optional<ShapePoint> middle = placeSideAircraft(scene)) {
        addVector(tools, scene, scene.axes.toScreen(scene.place->index, *scene.readings.altitudeMetres));
        addAircraft(tools, scene, *middle);
        addAltitude(tools, scene, *middle);
    } else if (scene.place) {
        addPlaceLine(tools, scene);
    }
    addNotes(tools, scene);
}

} // namespace skyvane
