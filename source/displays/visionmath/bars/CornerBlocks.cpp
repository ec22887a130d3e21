#include "displays/visionmath/bars/PfdBarDrawing.h"

#include "displays/gauges/SegmentFormat.h"
#include "displays/visionmath/PfdReadings.h"
#include "displays/visionmath/bars/BarPen.h"
#include "displays/visionmath/bars/PfdFormat.h"
#include "displays/visionmath/bars/PfdLayout.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

void drawAngleOfAttack(BarPen& pen, const BarScene& scene) {
    const PfdReadings& readings = scene.readings;
    if (!readings.hasAngleOfAttack)
        return;
    const ShapeRect& place = scene.layout.angleOfAttack;
    const auto& angle = readings.angleOfAttack;
    pen.picture(BarPicture::AngleScale, place, 0xffffffff, false, BarCanvas::Ground);
    if (!isValueShown(angle.flag) || !(angle.value.maximum > 0.0)) {
        pen.cross(place, L"AOA");
        return;
    }
    const double share = std::clamp(angle.value.angle / angle.value.maximum, 0.0, 1.0);
    const double y = place.LowerRightCorner.Y - (0.06 + 0.88 * share) * place.getHeight();
    const double size = 0.42 * place.getWidth(), left = place.UpperLeftCorner.X - 0.75 * size;
    const uint32_t tint = angle.flag == DialFlag::Doubtful ? BarColor::doubtful : 0xffffffff;
    pen.picture(BarPicture::AnglePointer, {left, y - 0.5 * size, left + size, y + 0.5 * size}, tint);
    BarText text;
    text.height = scene.layout.word;
    text.place = ShapePoint(middleX(place), place.UpperLeftCorner.Y - 1.1 * scene.layout.word);
    text.text = L"AOA";
    text.argb = BarColor::inkOf(angle.flag);
    if (!angle.value.inParts)
        text.text.append(L" ").append(formatWhole(angle.value.angle).view()).append(L"\u00B0");
    pen.text(BarCanvas::Scale, text);
}

void drawNextFix(BarPen& pen, const BarScene& scene) {
    const PfdReadings::NextFix& fix = scene.readings.nextFix;
    if (!(fix.nauticalMiles > -1e-8) || !std::isfinite(fix.nauticalMiles))
        return;
    const ShapeRect& place = scene.layout.nextFix;
    const double line = place.getHeight() / 3.0;
    const bool isShown = isValueShown(fix.flag);
    pen.pane(BarCanvas::Ground, BarPane::Block, place, withAlpha(BarColor::box, 0.8));
    BarText text;
    text.height = 1.15 * scene.layout.word;
    text.most = place.getWidth() - scene.layout.word;
    text.place = ShapePoint(middleX(place), place.UpperLeftCorner.Y + 0.55 * line);
    text.text = fix.name.view().empty() ? ShortText(L"Next") : fix.name;
    text.argb = BarColor::bug;
    pen.text(BarCanvas::Scale, text);
    text.argb = isShown ? BarColor::inkOf(fix.flag) : BarColor::failed;
    text.place.Y += 0.95 * line;
    text.text = isShown ? formatFixDistance(fix.nauticalMiles, scene.readings.metric) : ShortText(L"---");
    pen.text(BarCanvas::Scale, text);
    text.place.Y += 0.95 * line;
    text.text = isShown && fix.seconds >= 0 ? formatEte(fix.seconds) : ShortText(L"--:--");
    pen.text(BarCanvas::Scale, text);
}

void drawPfdBars(BarPen& pen, const BarScene& scene) {
    if (scene.settings.renderSpeedBar)
        drawSpeedBar(pen, scene);
    if (scene.settings.renderAltBar)
        drawAltitudeBar(pen, scene);
    if (scene.settings.renderVSpeedBar)
        drawVerticalSpeedBar(pen, scene);
    if (scene.settings.renderTrackBar)
        drawTrackBar(pen, scene);
    drawAngleOfAttack(pen, scene);
    drawNextFix(pen, scene);
}

} // namespace skyvane
