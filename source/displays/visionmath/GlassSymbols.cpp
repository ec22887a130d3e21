#include "displays/visionmath/GlassSymbols.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr uint32_t edgeColor = 0xc0000000;

/// 0 up, clockwise, y down.
ShapePoint clock(double degrees) {
    return {std::sin(degrees / DegreesPerRadian), -std::cos(degrees / DegreesPerRadian)};
}

ShapePoint across(const ShapePoint& direction) {
    return {-direction.Y, direction.X};
}

} // namespace

GlassSymbols::GlassSymbols(const Lens& lens, const irr::core::rect<int>& free)
    : lens_(lens), view_(0, 0, lens.width, lens.height), line_(std::max(2.0, 0.003 * lens.height)),
      size_(std::min(static_cast<double>(free.getWidth()), 0.75 * lens.height)) {
    arcRadius_ = std::min(0.5 * size_, 0.31 * lens.height);
    rungHalf_ = 0.26 * arcRadius_;
    numberHeight_ = std::max(10.0, 0.09 * arcRadius_);
    path_.reserve(16);
}

void GlassSymbols::line(ShapeMesh& mesh, double width, uint32_t argb, bool isClosed) {
    Stroke stroke;
    stroke.isClosed = isClosed;
    stroke.width = static_cast<float>(width + 2.0);
    stroke.argb = edgeColor;
    addStroke(mesh, path_, stroke, view_);
    stroke.width = static_cast<float>(width);
    stroke.argb = argb;
    addStroke(mesh, path_, stroke, view_);
}

void GlassSymbols::segment(ShapeMesh& mesh, const ShapePoint& a, const ShapePoint& b, double width, uint32_t argb) {
    path_.clear();
    path_.push_back(a);
    path_.push_back(b);
    line(mesh, width, argb);
}

Lens::Point GlassSymbols::getNumberPlace(const PitchRung& rung, int side) const {
    return rung.centre + rung.along * (side * (getRungHalfLength(rung) + numberHeight_));
}

void GlassSymbols::addLadder(ShapeMesh& mesh, const PitchLadder& ladder, uint32_t argb) {
    for (const PitchRung& rung : ladder) {
        if (rung.pitchDegrees == 0)
            continue;
        const ShapePoint half = rung.along * getRungHalfLength(rung);
        segment(mesh, rung.centre - half, rung.centre + half, line_, argb);
        if (!rung.isLong)
            continue;
        // The ends bend towards the horizon.
        const ShapePoint bend = across(rung.along) * (rung.pitchDegrees > 0 ? 4.0 * line_ : -4.0 * line_);
        segment(mesh, rung.centre - half, rung.centre - half + bend, line_, argb);
        segment(mesh, rung.centre + half, rung.centre + half + bend, line_, argb);
    }
}

void GlassSymbols::addHorizon(ShapeMesh& mesh, const HorizonLine& horizon, uint32_t argb) {
    const ShapePoint along = across(horizon.skyward) * (lens_.width + lens_.height);
    const ShapePoint foot = horizon.getFoot(lens_);
    segment(mesh, foot - along, foot + along, line_, argb);
}

void GlassSymbols::addSliver(ShapeMesh& mesh, const HorizonLine& horizon) {
    const bool sky = horizon.skyPixels < 0.0; // the middle shows ground: what is missing is sky
    path_ = sideOf(horizon, lens_, sky);
    if (!path_.empty())
        addConvex(mesh, path_, sky ? skyColor : groundColor);
}

void GlassSymbols::addFlightPath(ShapeMesh& mesh, const Lens::Point& place) {
    const double radius = arcRadius_ / 14.0;
    path_.clear();
    for (int i = 0; i < 24; ++i)
        path_.push_back(place + clock(i * 15.0) * radius);
    line(mesh, line_, pathColor, true);
    for (const double degrees : {0.0, 90.0, 270.0})
        segment(mesh, place + clock(degrees) * radius, place + clock(degrees) * radius * (degrees > 0.0 ? 2.2 : 1.8),
                line_, pathColor);
}

/// The drawings measure in parts of the bank scale's radius, which is 400 there.
GlassPicture GlassSymbols::makePicture(GlassPicture::Kind kind, const ShapePoint& place, double width,
                                       double height) const {
    const double scale = arcRadius_ / 400.0;
    return {kind, lens_.getCentre() + place * scale, ShapePoint(width * scale, height * scale), ShapePoint(0.5, 0.5)};
}

GlassPicture GlassSymbols::getFrame() const {
    GlassPicture picture = makePicture(GlassPicture::Frame, {0.0, 0.0}, 500.0, 90.0);
    picture.pivot.Y = 30.0 / 90.0;
    return picture;
}

GlassPicture GlassSymbols::getBankScale(double bankDegrees) const {
    GlassPicture picture = makePicture(GlassPicture::BankScale, {0.0, 0.0}, 800.0, 280.0);
    picture.pivot.Y = 460.0 / 280.0;
    picture.rotationDegrees = std::isfinite(bankDegrees) ? Angle180(bankDegrees) : 0.0;
    return picture;
}

GlassPicture GlassSymbols::getBankPointer() const {
    GlassPicture picture = makePicture(GlassPicture::BankPointer, {0.0, -396.0}, 60.0, 50.0);
    picture.pivot.Y = 0.0;
    return picture;
}

GlassPicture GlassSymbols::getBall(double sideways) const {
    constexpr double steepness = 1.732875, reach = 180.0;
    const double way = std::isfinite(sideways) ? 1.0 - std::exp(-steepness * std::abs(sideways)) : 0.0;
    return makePicture(GlassPicture::Ball, {std::copysign(way * reach, sideways), -338.0}, 60.0, 20.0);
}

void GlassSymbols::chevron(ShapeMesh& mesh, const ShapePoint& tip, const ShapePoint& towards) {
    const double reach = 0.24 * arcRadius_;
    const ShapePoint back = tip - towards * (0.8 * reach);
    path_.clear();
    path_.push_back(back + across(towards) * reach);
    path_.push_back(tip);
    path_.push_back(back - across(towards) * reach);
    line(mesh, 4.0 * line_, warningColor);
}

void GlassSymbols::addChevrons(ShapeMesh& mesh, const HorizonLine& horizon, double pitchDegrees, double bankDegrees) {
    const double gap = 0.3 * arcRadius_;
    if (std::abs(pitchDegrees) > steepDegrees) {
        const ShapePoint towards = horizon.skyward * (horizon.skyPixels > 0.0 ? -1.0 : 1.0);
        for (const double place : {-0.5, 0.5, 1.5})
            chevron(mesh, lens_.getCentre() + towards * (place * gap), towards);
    } else if (std::abs(Angle180(bankDegrees)) > bankedDegrees) {
        const ShapePoint foot = horizon.getFoot(lens_);
        for (const double side : {-1.0, 1.0})
            for (const double place : {0.6, 1.4})
                chevron(mesh, foot + horizon.skyward * (side * place * gap), horizon.skyward * -side);
    }
}

} // namespace skyvane
