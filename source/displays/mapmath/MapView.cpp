#include "displays/mapmath/MapView.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

/// The height of the screen over this is the zoom that a map starts with: so many metres fill the height.
constexpr double startMetres = 83396.20525904474;
constexpr double widestSpan = 180.0;
constexpr double boxLatitudeLimit = 89.0;
constexpr double dragSpeed = 0.5;

double latitudeSpan(double heightPixels, double zoom) {
    return heightPixels / zoom / MetresPerDegree;
}

double longitudeSpan(double widthPixels, double zoom, double latitude) {
    return std::min(widestSpan, widthPixels / zoom / longitudeScale(latitude) / MetresPerDegree);
}

/// So that a view of that height doesn't reach over a pole.
double clampLatitude(double latitude, double span) {
    const double limit = std::max(0.0, PolarLatitudeLimit - 0.5 * span);
    return std::clamp(latitude, -limit, limit);
}

bool isInRange(double area) {
    return area >= MapView::smallestArea && area <= MapView::largestArea;
}

/// How far out of the range of view areas, as a factor.
double excess(double area) {
    return area > MapView::largestArea ? area / MapView::largestArea : MapView::smallestArea / area;
}

} // namespace

void MapView::setPanel(const Panel& panel) {
    panel_ = panel;
    panel_.width = std::max(panel.width, 1);
    panel_.height = std::max(panel.height, 1);
    if (!hasPanel_)
        zoom_ = std::max(panel_.screenHeight, 1) / startMetres;
    hasPanel_ = true;
}

void MapView::setAircraft(const ChartPosition& position, double headingDegrees) {
    if (std::isfinite(position.longitude) && std::isfinite(position.latitude))
        aircraft_ = ChartPosition(Angle180(position.longitude), std::clamp(position.latitude, -90.0, 90.0));
    if (std::isfinite(headingDegrees))
        headingDegrees_ = Angle0to360(headingDegrees);
    if (isFollowing(mode_))
        base_ = aircraft_;
}

void MapView::setMode(MapMode mode) {
    mode_ = mode;
    if (isFollowing(mode))
        base_ = aircraft_;
}

void MapView::leaveFollowing() {
    if (!isFollowing(mode_))
        return;
    lastFollowMode_ = mode_;
    mode_ = MapMode::Marker;
}

void MapView::follow() {
    clearPans();
    setMode(lastFollowMode_);
}

void MapView::toggleOrientation() {
    clearPans();
    setMode(mode_ == MapMode::NorthUp ? MapMode::TrackUp : MapMode::NorthUp);
    lastFollowMode_ = mode_;
}

void MapView::centreOn(const ChartPosition& position) {
    leaveFollowing();
    mode_ = MapMode::Marker;
    dragPan_ = ChartPosition();
    pan_ = ChartPosition(Angle180(position.longitude - base_.longitude), position.latitude - base_.latitude);
}

void MapView::setPan(const Point& movedPixels) {
    dragPan_ =
        ChartPosition(-movedPixels.X * dragSpeed * longitudePerPixel_, movedPixels.Y * dragSpeed * latitudePerPixel_);
}

void MapView::commitPan() {
    pan_ = ChartPosition(Angle180(pan_.longitude + dragPan_.longitude), pan_.latitude + dragPan_.latitude);
    dragPan_ = ChartPosition();
}

void MapView::clearPans() {
    pan_ = ChartPosition();
    dragPan_ = ChartPosition();
}

double MapView::viewAreaAt(double zoom) const {
    const double height = latitudeSpan(panel_.height, zoom);
    const double latitude = clampLatitude(base_.latitude + pan_.latitude + dragPan_.latitude, height);
    const double share = static_cast<double>(panel_.width) * panel_.height /
                         (std::max(panel_.screenWidth, 1) * static_cast<double>(std::max(panel_.screenHeight, 1)));
    return std::fabs(longitudeSpan(panel_.width, zoom, latitude) * height) / share;
}

bool MapView::setZoom(double zoom) {
    if (!std::isfinite(zoom) || zoom <= 0.0)
        return false;
    const double area = viewAreaAt(zoom), before = viewAreaAt(zoom_);
    // A view may have got out of the range without a zoom, towards a pole: the way back is open.
    if (!isInRange(area) && (isInRange(before) || excess(area) >= excess(before)))
        return false;
    zoom_ = zoom;
    return true;
}

void MapView::calculateResolution() {
    const double height = latitudeSpan(panel_.height, zoom_);
    const double latitude = clampLatitude(base_.latitude + pan_.latitude + dragPan_.latitude, height);
    latitudePerPixel_ = height / panel_.height;
    longitudePerPixel_ = longitudeSpan(panel_.width, zoom_, latitude) / panel_.width;
    metresPerPixel_ = latitudePerPixel_ * MetresPerDegree;
    viewArea_ = viewAreaAt(zoom_);
}

void MapView::calculateViewPort() {
    const double width = longitudePerPixel_ * panel_.width, height = latitudePerPixel_ * panel_.height;
    const double longitude = base_.longitude + pan_.longitude + dragPan_.longitude;
    const double latitude = base_.latitude + pan_.latitude + dragPan_.latitude;
    const double west = Angle180(longitude - 0.5 * width);
    const double limit = std::max(0.0, boxLatitudeLimit - 0.5 * height);
    const double moved = std::clamp(latitude, -limit, limit) - latitude;
    if (!isFollowing(mode_))
        pan_.latitude += moved;
    const double middle = latitude + moved;
    box_ = {west, middle - 0.5 * height, west + width, middle + 0.5 * height};
    projection_ = FlatProjection(box_, panel_.width, panel_.height);
}

MapView::Point MapView::getPivot() const {
    return Point(0.5 * panel_.width, mode_ == MapMode::TrackUp ? 0.75 * panel_.height : 0.5 * panel_.height);
}

MapBox MapView::getReach(double marginPixels) const {
    Point half(0.5 * panel_.width, 0.5 * panel_.height);
    if (mode_ == MapMode::TrackUp) {
        const double radius = half.getLength() + 0.25 * panel_.height + panel_.buttonHeight;
        half = Point(radius, radius);
    }
    half += Point(marginPixels, marginPixels);
    const ChartPosition middle = box_.getCentre();
    MapBox reach{middle.longitude - half.X * longitudePerPixel_, middle.latitude - half.Y * latitudePerPixel_,
                 middle.longitude + half.X * longitudePerPixel_, middle.latitude + half.Y * latitudePerPixel_};
    reach.north = std::min(reach.north, boxLatitudeLimit);
    reach.south = std::max(reach.south, -boxLatitudeLimit);
    return reach;
}

MapView::Point MapView::toPanel(const ChartPosition& position) const {
    const Point middle(0.5 * panel_.width, 0.5 * panel_.height);
    const Point flat = projection_.toPixels(position) - middle;
    return getPivot() + (mode_ == MapMode::TrackUp ? turnToTop(flat, headingDegrees_) : flat);
}

ChartPosition MapView::toChart(const Point& pixel) const {
    const Point middle(0.5 * panel_.width, 0.5 * panel_.height);
    const Point offset = pixel - getPivot();
    return projection_.toChart(middle + (mode_ == MapMode::TrackUp ? turnFromTop(offset, headingDegrees_) : offset));
}

} // namespace skyvane
