#include "displays/visionmath/bars/PfdBarDrawing.h"
#include "displays/visionmath/bars/PfdFormat.h"
#include "displays/visionmath/bars/PfdLayout.h"
#include "displays/visionmath/bars/Tape.h"
#include "displays/visionmath/bars/TrackBug.h"

#include "displays/visionmath/bars/BarPen.h"

#include "chart/geodesy/Angles.h"
#include "displays/visionmath/PfdReadings.h"

namespace skyvane {
namespace {

/// The directions of a frame on the glass: all true, or all magnetic.
struct GlassDirections {
    double heading;
    double shift; ///< To be added to true directions.
    bool isMagnetic;
};

GlassDirections chooseDirections(const BarScene& scene) {
    const PfdReadings& readings = scene.readings;
    const double heading = readings.headingDegrees.value;
    if (!scene.settings.renderTrueMagHeading || !readings.magneticDegrees)
        return {heading, 0.0, false};
    return {*readings.magneticDegrees, Angle180(*readings.magneticDegrees - heading), true};
}

class TrackDrawing {
public:
    TrackDrawing(BarPen& pen, const BarScene& scene, const GlassDirections& directions)
        : pen_(pen), scene_(scene), layout_(scene.layout), band_(scene.layout.track), directions_(directions),
          ink_(BarColor::inkOf(scene.readings.headingDegrees.flag)), tape_{directions.heading,
                                                                           static_cast<double>(
                                                                               scene.settings.trackRangeDegrees),
                                                                           band_.UpperLeftCorner.X,
                                                                           band_.LowerRightCorner.X} {}

    void drawScale() {
        const double step = chooseStep(10.0, tape_.getPixelsPerUnit(), 3.2 * layout_.tick);
        const double top = band_.UpperLeftCorner.Y, half = 0.5 * layout_.line;
        for (long long i = tape_.getFirstStep(0.5 * step); i <= tape_.getLastStep(0.5 * step); ++i) {
            const double degrees = 0.5 * step * static_cast<double>(i), x = tape_.at(degrees);
            const bool isLong = i % 2 == 0;
            const double length = layout_.tick * (isLong ? 0.55 : 0.35);
            if (x > band_.UpperLeftCorner.X + half && x < band_.LowerRightCorner.X - half)
                pen_.rect(BarCanvas::Scale, {x - half, top, x + half, top + length}, ink_);
            if (isLong)
                addNumber(x, degrees);
        }
    }
    /// A house on the band's lower edge, or an arrow out of its end.
    void drawBug(double direction, uint32_t argb) {
        const TrackBug bug = placeTrackBug(tape_.value, direction, tape_.range);
        const double x = tape_.at(tape_.value + bug.offsetDegrees), y = band_.LowerRightCorner.Y - 1.0;
        const double size = 0.62 * layout_.tick, tip = bug.isLeft ? -1.0 : 1.0;
        if (bug.isBeyond) {
            pen_.polygon(BarCanvas::Box, {{x, y - 0.5 * size}, {x - tip * size, y - size}, {x - tip * size, y}}, argb);
            pen_.rect(BarCanvas::Box,
                      {x - (tip > 0.0 ? 1.7 : -1.0) * size, y - 0.72 * size, x - (tip > 0.0 ? 1.0 : -1.7) * size,
                       y - 0.28 * size},
                      argb);
        } else {
            pen_.polygon(BarCanvas::Box,
                         {{x, y - 1.2 * size},
                          {x + 0.7 * size, y - 0.6 * size},
                          {x + 0.7 * size, y},
                          {x - 0.7 * size, y},
                          {x - 0.7 * size, y - 0.6 * size}},
                         argb);
        }
    }
    void drawTrack(double direction) {
        const TrackBug place = placeTrackBug(tape_.value, direction, tape_.range);
        if (place.isBeyond)
            return;
        const double x = tape_.at(tape_.value + place.offsetDegrees), y = band_.UpperLeftCorner.Y;
        const double size = 0.32 * layout_.tick;
        pen_.polygon(BarCanvas::Box, {{x, y}, {x + size, y + size}, {x, y + 2.0 * size}, {x - size, y + size}},
                     BarColor::track);
    }
    void drawBox() {
        const ShapeRect& head = layout_.trackHead;
        const double middle = middleX(head), half = 1.9 * layout_.tick, bottom = head.LowerRightCorner.Y;
        const ShapeRect box(middle - half, head.UpperLeftCorner.Y, middle + half, bottom - 0.3 * layout_.tick);
        const double notch = 0.45 * layout_.tick;
        pen_.polygon(BarCanvas::Scale,
                     {{middle - notch, box.LowerRightCorner.Y},
                      {middle + notch, box.LowerRightCorner.Y},
                      {middle, bottom + 0.25 * layout_.tick}},
                     ink_);
        pen_.pane(BarCanvas::Box, BarPane::Value, box, ink_);
        BarText text;
        text.text = formatDirection(directions_.heading).append(L"\u00B0");
        text.height = 1.08 * layout_.tick;
        text.argb = ink_;
        text.place = ShapePoint(middle, middleY(box));
        text.most = 1.9 * half;
        pen_.text(BarCanvas::Box, text);
    }

private:
    void addNumber(double x, double degrees) {
        BarText text;
        text.text = formatDirection(degrees);
        text.height = 0.85 * layout_.tick;
        text.argb = ink_;
        text.place = ShapePoint(x, band_.UpperLeftCorner.Y + 1.2 * layout_.tick);
        text.clip = band_;
        pen_.text(BarCanvas::Scale, text);
    }

    BarPen& pen_;
    const BarScene& scene_;
    const PfdLayout& layout_;
    ShapeRect band_;
    GlassDirections directions_;
    uint32_t ink_;
    Tape tape_;
};

/// Two lines on each side of the value: what the band shows, and the bearing of the plan.
void drawWords(BarPen& pen, const BarScene& scene, const GlassDirections& directions) {
    const PfdLayout& layout = scene.layout;
    const ShapeRect& head = layout.trackHead;
    const double margin = 0.4 * layout.word, room = middleX(head) - 2.1 * layout.tick - head.UpperLeftCorner.X;
    BarText text;
    text.height = 0.95 * layout.word;
    text.most = room - margin;
    const double upper = middleY(head) - 0.8 * layout.word, lower = middleY(head) + 0.8 * layout.word;
    const auto put = [&](BarText::Align align, double x, double y, const ShortText& words, uint32_t argb) {
        text.align = align;
        text.place = ShapePoint(x, y);
        text.text = words;
        text.argb = argb;
        pen.text(BarCanvas::Scale, text);
    };
    const double left = head.UpperLeftCorner.X + margin, right = head.LowerRightCorner.X - margin;
    put(BarText::Left, left, upper, L"GroundTrack/", BarColor::white);
    put(BarText::Left, left, lower, L"Bearing", scene.readings.bearingDegrees ? BarColor::bug : BarColor::grey);
    const bool missing = scene.settings.renderTrueMagHeading && !directions.isMagnetic;
    put(BarText::Right, right, upper, directions.isMagnetic ? L"MAG" : L"TRUE",
        missing ? BarColor::caution : BarColor::white);
    if (scene.readings.headingDegrees.flag == DialFlag::Simulated)
        put(BarText::Right, right - 3.6 * layout.word, upper, L"SIM", BarColor::simulated);
    if (scene.readings.bearingDegrees)
        put(BarText::Right, right, lower,
            formatDirection(*scene.readings.bearingDegrees + directions.shift).append(L"\u00B0"), BarColor::bug);
}

} // namespace

void drawTrackBar(BarPen& pen, const BarScene& scene) {
    const PfdReadings& readings = scene.readings;
    const DialFlag flag = readings.headingDegrees.flag;
    const GlassDirections directions = chooseDirections(scene);
    pen.band(scene.layout.track, scene.settings.barColor);
    pen.pane(BarCanvas::Ground, BarPane::Title, scene.layout.trackHead);
    if (!isValueShown(flag)) {
        ShapeRect both = scene.layout.trackHead;
        both.addInternalPoint(scene.layout.track.LowerRightCorner);
        pen.cross(both, L"HDG");
        return;
    }
    drawWords(pen, scene, directions);
    TrackDrawing drawing(pen, scene, directions);
    drawing.drawScale();
    if (flag == DialFlag::Doubtful)
        pen.frame(BarCanvas::Scale, scene.layout.track, scene.layout.line, BarColor::doubtful);
    if (readings.trackDegrees)
        drawing.drawTrack(*readings.trackDegrees + directions.shift);
    if (readings.bearingDegrees)
        drawing.drawBug(*readings.bearingDegrees + directions.shift, BarColor::bug);
    drawing.drawBox();
}

} // namespace skyvane
