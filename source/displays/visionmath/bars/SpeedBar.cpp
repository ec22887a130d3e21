#include "displays/visionmath/bars/PfdBarDrawing.h"

#include "displays/gauges/SegmentFormat.h"
#include "displays/visionmath/bars/PfdFormat.h"
#include "displays/visionmath/bars/SpeedSource.h"
#include "displays/visionmath/bars/TapeBar.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr RollingDigits::Form speedDrums{1, 1.0, 4};
constexpr double fastest = 1e5;

/// The marks are indicated speeds: beside a ground speed they are only a hint, and look like it.
void drawStrips(TapeBar& bar, const Tape& tape, const BarScene& scene, bool isGroundSpeed) {
    const SpeedScale& speeds = scene.readings.speeds;
    const bool metric = scene.readings.metric;
    const auto color = [&](uint32_t argb) { return isGroundSpeed ? withAlpha(argb, 0.35) : argb; };
    const auto strip = [&](double low, double high, double from, double to, uint32_t argb) {
        if (low >= 0.0 && high >= 0.0)
            bar.strip(tape, toSpeedUnit(low, metric), high == fastest ? high : toSpeedUnit(high, metric), from, to,
                      color(argb));
    };
    strip(speeds.greenStart, speeds.greenEnd, 0.0, 1.0, BarColor::normalArc);
    strip(speeds.greenEnd, speeds.red, 0.0, 1.0, BarColor::cautionArc);
    strip(speeds.whiteStart, speeds.whiteEnd, 0.5, 1.0, BarColor::flapArc);
    strip(speeds.red, fastest, 0.0, 1.0, BarColor::redArc);
    if (!(speeds.blue > 0.0))
        return;
    const double half = 2.0 * scene.layout.line / tape.getPixelsPerUnit(), blue = toSpeedUnit(speeds.blue, metric);
    bar.strip(tape, blue - half, blue + half, 0.0, 2.2, color(BarColor::blueLine));
}

bool isTooFast(const BarScene& scene, const ShownSpeed& speed) {
    const double limit = scene.readings.speeds.red;
    return !speed.isGroundSpeed && limit > 0.0 && speed.value >= toSpeedUnit(limit, scene.readings.metric);
}

void drawGroundSpeed(BarPen& pen, const BarScene& scene) {
    const auto& speed = scene.readings.groundSpeedKnots;
    pen.label(scene.layout.groundSpeed, formatGroundSpeedLine(speed.value, speed.flag, scene.readings.metric),
              1.25 * scene.layout.word, isValueShown(speed.flag) ? BarColor::inkOf(speed.flag) : BarColor::failed);
}

} // namespace

void drawSpeedBar(BarPen& pen, const BarScene& scene) {
    const PfdLayout& layout = scene.layout;
    ShownSpeed speed = chooseSpeed(scene.readings);
    if (!RollingDigits::canShow(speed.value, speedDrums))
        speed.flag = DialFlag::Failed;
    drawGroundSpeed(pen, scene);
    TapeBar bar(pen, layout, layout.speed, TapeBar::MarksRight, speed.flag);
    if (!bar.begin(layout.speedTitle, speed.title, scene.settings.barColor, speed.failureName,
                   speed.isGroundSpeed ? BarColor::caution : BarColor::white))
        return;
    const Tape tape = bar.makeTape(speed.value, toSpeedUnit(scene.settings.speedRangeKnots, scene.readings.metric));
    drawStrips(bar, tape, scene, speed.isGroundSpeed);
    const double step = chooseStep(10.0, tape.getPixelsPerUnit(), 1.9 * layout.tick);
    bar.scale(tape, 0.5 * step, 2, 0.0, [](double mark) { return formatWhole(mark); });
    const uint32_t ink = isTooFast(scene, speed) ? BarColor::overspeed : BarColor::inkOf(speed.flag);
    pen.counter(RollingDigits(speed.value, speedDrums), bar.box(ink), bar.getDigitsRight(), layout.value, ink);
}

} // namespace skyvane
