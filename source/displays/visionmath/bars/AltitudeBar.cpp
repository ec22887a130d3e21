#include "displays/visionmath/bars/PfdBarDrawing.h"

#include "displays/gauges/Needles.h"
#include "displays/gauges/SegmentFormat.h"
#include "displays/visionmath/PfdReadings.h"
#include "displays/visionmath/bars/PfdFormat.h"
#include "displays/visionmath/bars/TapeBar.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr RollingDigits::Form feetDrums{2, 20.0, 5}, metreDrums{2, 5.0, 5};
constexpr double lowest = -1e6;

/// Ground below the aircraft, as far as it comes into view.
void drawGround(TapeBar& bar, const Tape& tape, const BarScene& scene, double unit) {
    const PfdReadings& readings = scene.readings;
    if (!std::isfinite(readings.groundMetres) || !isValueShown(readings.seaLevelHeightMetres.flag))
        return;
    // As far below the pointer as the ground is below the aircraft, however the altimeter is set.
    const double above = (readings.seaLevelHeightMetres.value - readings.groundMetres) / unit;
    const double top = tape.value - above, strips = scene.layout.altitude.getWidth() / bar.getStripWidth();
    bar.strip(tape, tape.value - tape.range, top, 0.0, strips, withAlpha(BarColor::ground, 0.6));
    const double half = 0.75 * scene.layout.line / tape.getPixelsPerUnit();
    bar.strip(tape, top - half, top + half, 0.0, strips, BarColor::caution);
}

void drawAboveGround(BarPen& pen, const BarScene& scene) {
    const PfdReadings& readings = scene.readings;
    const auto& height = readings.seaLevelHeightMetres;
    const bool known = isValueShown(height.flag) && std::isfinite(readings.groundMetres);
    const double metres = height.value - readings.groundMetres;
    const ShapeRect& place = scene.layout.aboveGround;
    pen.label(place, formatAboveGroundLine(metres, known, readings.metric), 1.25 * scene.layout.word,
              BarColor::inkOf(known ? height.flag : DialFlag::Good));
    const double shade = known ? calcLowShade(metres / metresPerFoot) : 0.0;
    if (shade > 0.0)
        pen.frame(BarCanvas::Scale, place, 1.5 * scene.layout.line, withAlpha(BarColor::failed, shade));
}

void drawQnh(BarPen& pen, const BarScene& scene) {
    const ShapeRect& place = scene.layout.qnh;
    const PfdReadings& readings = scene.readings;
    const double word = scene.layout.word;
    pen.pane(BarCanvas::Ground, BarPane::Value, place);
    BarText text;
    text.height = word;
    text.most = place.getWidth() - word;
    text.place = ShapePoint(middleX(place), middleY(place) - 0.78 * word);
    text.text = formatQnhLine(readings.seaLevelMillibars);
    text.argb = readings.isSatelliteAltitude ? BarColor::grey : BarColor::white;
    pen.text(BarCanvas::Scale, text);
    text.place.Y = middleY(place) + 0.78 * word;
    text.text = readings.isSatelliteAltitude ? ShortText(L"GNSS ALT") : formatInchesLine(readings.seaLevelMillibars);
    text.argb = readings.isSatelliteAltitude ? BarColor::caution : BarColor::white;
    pen.text(BarCanvas::Scale, text);
}

} // namespace

void drawAltitudeBar(BarPen& pen, const BarScene& scene) {
    const PfdLayout& layout = scene.layout;
    const bool metric = scene.readings.metric;
    const auto& altitude = scene.readings.altitudeMetres;
    const RollingDigits::Form& drums = metric ? metreDrums : feetDrums;
    const double unit = metric ? 1.0 : metresPerFoot, value = altitude.value / unit;
    const DialFlag flag = RollingDigits::canShow(value, drums) ? altitude.flag : DialFlag::Failed;
    drawAboveGround(pen, scene);
    drawQnh(pen, scene);
    TapeBar bar(pen, layout, layout.altitude, TapeBar::MarksLeft, flag, 0.02);
    if (!bar.begin(layout.altitudeTitle, metric ? L"MSL (100m)" : L"MSL (100ft)", scene.settings.barColor, L"ALT"))
        return;
    // A metric tape shows as many metres: in 400 feet of them there would be a single number.
    const Tape tape = bar.makeTape(value, scene.settings.altitudeRangeFeet);
    drawGround(bar, tape, scene, unit);
    const double step = chooseStep(100.0, tape.getPixelsPerUnit(), 1.9 * layout.tick);
    bar.scale(tape, 0.2 * step, 5, lowest, [](double mark) { return formatWhole(mark / 100.0); });
    const ShapeRect window = bar.box(BarColor::inkOf(flag));
    pen.counter(RollingDigits(value, drums), window, bar.getDigitsRight(), layout.value, BarColor::inkOf(flag));
}

} // namespace skyvane
