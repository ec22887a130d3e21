#include "displays/visionmath/bars/PfdBarDrawing.h"

#include "displays/gauges/Needles.h"
#include "displays/visionmath/PfdReadings.h"
#include "displays/visionmath/bars/PfdFormat.h"
#include "displays/visionmath/bars/TapeBar.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double fastestMetres = 500.0, lowest = -1e6;

} // namespace

void drawVerticalSpeedBar(BarPen& pen, const BarScene& scene) {
    const PfdLayout& layout = scene.layout;
    const bool metric = scene.readings.metric;
    const auto& speed = scene.readings.verticalSpeedMetres;
    const DialFlag flag = std::abs(speed.value) < fastestMetres ? speed.flag : DialFlag::Failed;
    TapeBar bar(pen, layout, layout.vertical, TapeBar::MarksLeft, flag);
    if (!bar.begin(layout.verticalTitle, metric ? L"VS m/s" : L"VS ft/min", scene.settings.barColor, L"VS"))
        return;
    // Feet per minute; the numbers of a metric scale stand for metres per second.
    const double unit = metric ? 0.5 : 100.0;
    const double value = metric ? speed.value : toFeetPerMinute(speed.value);
    const double feetOfRange = scene.settings.verticalSpeedRangeFeet;
    const Tape tape = bar.makeTape(value, metric ? feetOfRange / 60.0 * metresPerFoot : feetOfRange);
    // From level flight to the pointer.
    bar.strip(tape, std::min(0.0, value), std::max(0.0, value), 0.0, 1.0,
              value < 0.0 ? BarColor::caution : BarColor::track);
    const double step = chooseStep(unit, tape.getPixelsPerUnit(), 1.9 * layout.tick);
    bar.scale(tape, 0.5 * step, 2, lowest, [&](double mark) { return formatVerticalMark(mark, metric); });
    BarText text;
    text.text = formatVerticalSpeed(speed.value, metric);
    text.height = 0.85 * layout.value;
    text.argb = BarColor::inkOf(flag);
    text.align = BarText::Right;
    text.place = ShapePoint(bar.getDigitsRight(), middleY(bar.box(BarColor::inkOf(flag))));
    text.most = 0.7 * layout.vertical.getWidth();
    pen.text(BarCanvas::Box, text);
}

} // namespace skyvane
