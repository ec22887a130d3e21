#include "displays/drawing/Drawer2D.h"

#include "core/time/Time.h"
#include "displays/drawing/Drawer2DState.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace skyvane {

namespace {

Point2f toFloat(irr::core::vector2d<int> point) {
    return Point2f(static_cast<float>(point.X), static_cast<float>(point.Y));
}

Rect2f toFloat(const irr::core::rect<int>& rect) {
    return Rect2f(toFloat(rect.UpperLeftCorner), toFloat(rect.LowerRightCorner));
}

} // namespace

void Drawer2D::State::setColors(irr::video::SColor upperLeft, irr::video::SColor upperRight,
                                irr::video::SColor lowerLeft, irr::video::SColor lowerRight) {
    colors[0] = upperLeft;
    colors[1] = upperRight;
    colors[2] = lowerLeft;
    colors[3] = lowerRight;
}

void Drawer2D::State::setTextureCoordinates(const Point2f* four) {
    coordinates = quadOfRect(Rect2f(0.0f, 0.0f, 1.0f, 1.0f));
    if (four)
        std::copy(four, four + 4, coordinates.corner);
    updateMirroring();
}

void Drawer2D::State::updateMirroring() {
    mirroredCoordinates = coordinates;
    Point2f* corner = mirroredCoordinates.corner;
    if (mirrorHorizontal) {
        std::swap(corner[0], corner[1]);
        std::swap(corner[2], corner[3]);
    }
    if (mirrorVertical) {
        std::swap(corner[0], corner[2]);
        std::swap(corner[1], corner[3]);
    }
}

void Drawer2D::State::addQuad(const QuadPoints& places, const QuadPoints& textureCoordinates) {
    const unsigned first = batch.room(4, 6);
    for (int i = 0; i < 4; ++i)
        batch.vertex(places.corner[i], textureCoordinates.corner[i], colors[i]);
    batch.triangle(first, first + 1, first + 2);
    batch.triangle(first + 1, first + 3, first + 2);
}

void Drawer2D::State::addArc(Point2f centre, float inner, float outer, float fromDegrees, float toDegrees,
                             int segments) {
    // Four rings: the alpha falls to zero over one pixel at both edges.
    struct Ring {
        float radius;
        float across;
        irr::video::SColor color;
    };
    const float soft = std::min(softEdge, 0.5f * (outer - inner));
    const Ring rings[4] = {{outer + soft, 0.0f, transparent(colors[0])},
                           {outer - soft, 0.0f, colors[0]},
                           {inner + soft, 1.0f, colors[2]},
                           {std::max(0.0f, inner - soft), 1.0f, transparent(colors[2])}};
    const auto steps = static_cast<unsigned>(segments);
    const unsigned first = batch.room(4 * (steps + 1), 18 * steps);
    for (unsigned i = 0; i <= steps; ++i) {
        const float share = static_cast<float>(i) / steps;
        const Point2f direction = clockDirection(fromDegrees + (toDegrees - fromDegrees) * share);
        for (const Ring& ring : rings)
            batch.vertex(centre + direction * ring.radius, Point2f(share, ring.across), ring.color);
    }
    for (unsigned here = first; here < first + 4 * steps; here += 4) {
        for (unsigned ring = here; ring < here + 3; ++ring) {
            batch.triangle(ring, ring + 4, ring + 1);
            batch.triangle(ring + 4, ring + 5, ring + 1);
        }
    }
}

Drawer2D::Drawer2D(irr::IrrlichtDevice* device)
    : device_(device), state_(std::make_unique<State>(device->getVideoDriver())) {}

Drawer2D::~Drawer2D() = default;

void Drawer2D::Draw(irr::video::ITexture* texture, Position position, irr::core::dimension2d<int> size,
                    float rotationDegrees, PointF pivot) {
    if (!texture || size.Width < 1 || size.Height < 1)
        return;
    state_->batch.use(texture);
    const Point2f extent(static_cast<float>(size.Width), static_cast<float>(size.Height));
    state_->addQuad(rotatedQuad(toFloat(position), extent, rotationDegrees, pivot), state_->mirroredCoordinates);
}

void Drawer2D::Draw(irr::video::ITexture* texture, const irr::core::rect<int>& destination,
                    const irr::core::rect<int>* clip) {
    if (!texture || destination.getWidth() < 1 || destination.getHeight() < 1)
        return;
    Rect2f rect = toFloat(destination);
    QuadPoints coordinates = state_->mirroredCoordinates;
    if (clip && !clipQuad(rect, coordinates, toFloat(*clip)))
        return;
    state_->batch.use(texture);
    state_->addQuad(quadOfRect(rect), coordinates);
}

void Drawer2D::DrawLine(irr::video::ITexture* texture, Position from, Position to, int width, float pivotY) {
    const double dx = static_cast<double>(to.X) - from.X, dy = static_cast<double>(to.Y) - from.Y;
    const double distance = std::sqrt(dx * dx + dy * dy);
    if (!texture || distance == 0.0 || width < 1)
        return;
    // A centred line of odd width runs through pixel centres, so that it covers whole pixels.
    const float shift = width % 2 == 1 && pivotY == 0.5f ? 0.5f : 0.0f;
    const Point2f start = toFloat(from) + Point2f(shift, shift);
    const Point2f extent(static_cast<float>(std::floor(distance + 0.5)), static_cast<float>(width));
    const float degrees = static_cast<float>(std::atan2(-dy, dx) * (180.0 / 3.14159265358979323846));
    state_->batch.use(texture);
    state_->addQuad(rotatedQuad(start, extent, degrees, Point2f(0.0f, pivotY)), state_->mirroredCoordinates);
}

void Drawer2D::DrawArc(irr::video::ITexture* texture, Position centre, float radius, float fromDegrees, float toDegrees,
                       float stepDegrees, int width, float pivotY) {
    if (!texture || width < 1 || fromDegrees == toDegrees || !std::isfinite(fromDegrees) || !std::isfinite(toDegrees))
        return;
    if (fromDegrees > toDegrees)
        std::swap(fromDegrees, toDegrees);
    const float outer = radius + pivotY * width;
    state_->batch.use(texture);
    state_->addArc(toFloat(centre), std::max(0.0f, outer - width), outer, fromDegrees, toDegrees,
                   arcSegments(toDegrees - fromDegrees, stepDegrees));
}

void Drawer2D::setColor(irr::video::SColor color) {
    state_->setColor(color);
}

void Drawer2D::setColors(const irr::video::SColor* four) {
    state_->setColors(four[0], four[1], four[2], four[3]);
}

void Drawer2D::setTextureCoordinates(const PointF* four) {
    state_->setTextureCoordinates(four);
}

void Drawer2D::setMirroring(bool horizontal, bool vertical) {
    state_->mirrorHorizontal = horizontal;
    state_->mirrorVertical = vertical;
    state_->updateMirroring();
}

void Drawer2D::setFiltering(bool bilinear, bool trilinear, int anisotropy) {
    state_->batch.setFiltering(bilinear, trilinear, anisotropy);
}

void Drawer2D::setTextureWrap(bool clampU, bool clampV) {
    state_->batch.setTextureWrap(clampU, clampV);
}

void Drawer2D::setMaterialType(irr::video::E_MATERIAL_TYPE type) {
    state_->batch.setMaterialType(type);
}

void Drawer2D::setAutoResetTransformEnabled(bool enabled) {
    state_->batch.setAutoResetTransformEnabled(enabled);
}

void Drawer2D::reset2DTransforms() {
    state_->batch.flush();
    state_->batch.resetTransforms();
}

void Drawer2D::flush() {
    state_->batch.flush();
}

void Drawer2D::setViewPort(const irr::core::rect<int>& rect) {
    state_->batch.setViewPort(rect);
}

void Drawer2D::resetViewPort() {
    state_->batch.resetViewPort();
}

float blink() {
    const double degrees = static_cast<double>((MilliSecs() / 5) % 360);
    return static_cast<float>(std::fabs(std::sin(degrees * 3.14 / 180.0)));
}

} // namespace skyvane
