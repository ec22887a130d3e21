#include "displays/visionmath/bars/PfdLayout.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

double whole(double pixels) {
    return std::round(pixels);
}

ShapeRect between(double left, double top, double right, double bottom) {
    return {whole(left), whole(top), whole(right), whole(bottom)};
}

} // namespace

PfdLayout::PfdLayout(const irr::core::rect<int>& panel, const VisionSettings& settings) {
    const double height = panel.getHeight();
    barWidth = settings.barSize * panel.getWidth();
    // A low and wide panel has no room for digits that fit its bars.
    const double unit = std::min(barWidth, 0.3 * height);
    // What is smaller can't be read at arm's length; words that are too long for their place are made narrower.
    tick = std::max(14.0, 0.125 * unit);
    value = std::max(15.0, 0.172 * unit);
    word = std::max(12.0, 0.085 * unit);
    line = std::max(2.0, whole(std::min(0.003 * height, 0.016 * unit)));
    shortMark = std::min(0.025 * height, 0.09 * barWidth);
    placeTapes(panel, settings);
    placeTrack(panel);
    placeCorner(panel);
    const bool right = settings.renderAltBar || settings.renderVSpeedBar;
    free = panel;
    free.UpperLeftCorner.X += settings.renderSpeedBar ? static_cast<int>(2.0 * barWidth) : 0;
    free.LowerRightCorner.X -= right ? static_cast<int>(2.0 * barWidth) : 0;
    if (settings.renderTrackBar)
        free.UpperLeftCorner.Y = static_cast<int>(std::ceil(track.LowerRightCorner.Y));
}

void PfdLayout::placeTapes(const irr::core::rect<int>& panel, const VisionSettings& settings) {
    const double left = panel.UpperLeftCorner.X, right = panel.LowerRightCorner.X;
    const double top = panel.UpperLeftCorner.Y, bottom = panel.LowerRightCorner.Y;
    const double title = whole(2.2 * word), foot = whole(3.4 * word), margin = 2.0;
    const double most = bottom - top - 2.0 * (foot + margin);
    const double half = 0.5 * std::max(1.0, std::min(barWidth / settings.barRatio, most));
    const double middle = 0.5 * (top + bottom), upper = middle - half, lower = middle + half;
    const double b = barWidth, gap = std::max(1.0, whole(0.02 * b));
    const auto column = [&](double from, double to, ShapeRect& tape, ShapeRect& head) {
        tape = between(from, upper, to, lower);
        head = between(from, upper - title, to, upper);
    };
    column(left + b, left + 2.0 * b - gap, speed, speedTitle);
    column(right - 2.0 * b + gap, right - b, altitude, altitudeTitle);
    column(right - b + gap, right - b + gap + 0.9 * b, vertical, verticalTitle);
    const double foot0 = lower + margin, foot1 = lower + margin + foot;
    groundSpeed = between(left + b, foot0, left + 2.0 * b - gap, foot1);
    aboveGround = between(right - 2.0 * b + gap, foot0, right - b, foot1);
    qnh = between(right - b + gap, foot0, right - gap, foot1);
}

void PfdLayout::placeTrack(const irr::core::rect<int>& panel) {
    const double gap = whole(0.06 * barWidth), top = panel.UpperLeftCorner.Y + 2.0;
    const double left = panel.UpperLeftCorner.X + 2.0 * barWidth + gap;
    const double right = panel.LowerRightCorner.X - 2.0 * barWidth - gap;
    const double head = std::max(1.9 * tick, 3.7 * word);
    trackHead = between(left, top, right, top + head);
    track = between(left, top + head, right, top + head + 2.15 * tick);
}

void PfdLayout::placeCorner(const irr::core::rect<int>& panel) {
    const double left = panel.UpperLeftCorner.X, bottom = panel.LowerRightCorner.Y;
    const double margin = whole(0.05 * barWidth), height = 7.4 * word;
    nextFix = between(left + margin, bottom - margin - height, left + barWidth - margin, bottom - margin);
    const double half = std::min(0.7 * barWidth, 0.5 * (nextFix.UpperLeftCorner.Y - speed.UpperLeftCorner.Y) - margin);
    const double middle = speed.UpperLeftCorner.Y + 2.0 * word + half;
    angleOfAttack = between(left + 0.28 * barWidth, middle - half, left + 0.72 * barWidth, middle + half);
}

} // namespace skyvane
