#include "chart/geodesy/EarthConstants.h"
#include "core/text/Numbers.h"
#include "displays/gauges/SegmentFormat.h"
#include "displays/informationmath/SideDrawing.h"
#include "displays/informationmath/SideScales.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double tickPixels = 6.0;
/// From mark to mark, in heights of a digit and widths of a word.
constexpr double altitudeSpacing = 3.2, distanceSpacing = 1.8;
constexpr double leastAltitude = 10.0, leastDistance = 0.1;

double pad(const SideScene& scene) {
    return 0.5 * scene.textHeight;
}

ShapeRect altitudeStrip(const SideScene& scene) {
    ShapeRect strip = scene.axes.panel;
    strip.LowerRightCorner.X = strip.UpperLeftCorner.X + scene.scaleWidth;
    return strip;
}

BarText word(const SideScene& scene, const ShortText& text, double x, double y, BarText::Align align) {
    BarText result;
    result.text = text;
    result.place = ShapePoint(x, y);
    result.height = scene.textHeight;
    result.argb = SideColor::ink;
    result.align = align;
    return result;
}

ShortText distanceText(double value, double step, bool metric) {
    return ShortText().append(toFixedText(value, step < 1.0 ? 1 : 0)).append(metric ? L" km" : L" NM");
}

} // namespace

void addAltitudeScale(SideTools& tools, const SideScene& scene) {
    if (scene.scaleWidth <= 0.0)
        return;
    const SideAxes& axes = scene.axes;
    const double unit = scene.metric ? 1.0 : MetresPerFoot, h = scene.textHeight;
    const double unitsPerPixel = (axes.top - axes.lowest) / unit / axes.panel.getHeight();
    const double step = chooseScaleStep(unitsPerPixel, altitudeSpacing * h, leastAltitude);
    const ShapeRect strip = altitudeStrip(scene);
    tools.pen.shade(BarCanvas::Box, strip, SideColor::strip, SideColor::strip);
    const double lowestLabel = strip.LowerRightCorner.Y - scene.scaleHeight - 0.8 * h;
    const double left = strip.LowerRightCorner.X, right = axes.panel.LowerRightCorner.X;
    for (double value = std::ceil(axes.lowest / unit / step) * step; step > 0.0 && value * unit <= axes.top;
         value += step) {
        const double y = axes.yOf(value * unit);
        tools.pen.shade(BarCanvas::Ground, {left, y - 0.5, right, y + 0.5}, SideColor::grid, SideColor::grid);
        const bool isHidden = scene.aircraftBox.UpperLeftCorner.X < left &&
                              y + 0.7 * h > scene.aircraftBox.UpperLeftCorner.Y &&
                              y - 0.7 * h < scene.aircraftBox.LowerRightCorner.Y;
        if (y > lowestLabel || y < strip.UpperLeftCorner.Y + 0.8 * h || isHidden)
            continue;
        tools.pen.shade(BarCanvas::Box, {left - tickPixels, y - 1.0, left, y + 1.0}, SideColor::ink, SideColor::ink);
        tools.pen.text(BarCanvas::Box,
                       word(scene, formatWhole(value), left - tickPixels - pad(scene), y, BarText::Right));
    }
    if (scene.scaleHeight > 0.0)
        tools.pen.text(BarCanvas::Box, word(scene, scene.metric ? L"m" : L"ft", left - tickPixels - pad(scene),
                                            strip.LowerRightCorner.Y - 0.5 * scene.scaleHeight, BarText::Right));
}

void addDistanceScale(SideTools& tools, const SideScene& scene) {
    if (scene.scaleHeight <= 0.0)
        return;
    const SideAxes& axes = scene.axes;
    const double unit = scene.metric ? 1000.0 : MetresPerNauticalMile;
    const double pixelsPerUnit = axes.getPixelsPerMetre() * unit;
    const double widest = tools.measure.measure(L"888.8 NM", scene.textHeight);
    const double step = chooseScaleStep(1.0 / pixelsPerUnit, distanceSpacing * widest, leastDistance);
    const double top = axes.panel.LowerRightCorner.Y - scene.scaleHeight;
    const double left = axes.panel.UpperLeftCorner.X + scene.scaleWidth, right = axes.panel.LowerRightCorner.X;
    tools.pen.shade(BarCanvas::Ground, {left, top, right, axes.panel.LowerRightCorner.Y}, SideColor::strip,
                    SideColor::strip);
    if (step <= 0.0)
        return;
    const double zero = axes.xOf(scene.place ? scene.place->index : 0.0);
    const double middle = top + 0.5 * scene.scaleHeight + 2.0;
    double value = std::max(0.0, std::floor((left - zero) / pixelsPerUnit / step) * step);
    for (; zero + value * pixelsPerUnit <= right; value += step) {
        const double x = zero + value * pixelsPerUnit;
        const ShortText text = value > 0.0 ? distanceText(value, step, scene.metric) : ShortText(L"0");
        const double half = 0.5 * tools.measure.measure(text, scene.textHeight);
        if (x < left)
            continue;
        tools.pen.shade(BarCanvas::Scale, {x - 1.0, top, x + 1.0, top + tickPixels}, SideColor::ink, SideColor::ink);
        if (x + half <= right - 2.0)
            tools.pen.text(BarCanvas::Scale,
                           word(scene, text, std::max(x, left + half + 3.0), middle, BarText::Centre));
    }
}

} // namespace skyvane
