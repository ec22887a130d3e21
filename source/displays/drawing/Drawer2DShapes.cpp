#include "chart/geodesy/Triangulate.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/drawing/Drawer2DState.h"
#include "displays/shapes/ShapeMesh.h"

#include <algorithm>

namespace skyvane {

namespace {

/// Vertices of a filled outline with a soft edge: a centre, then for each point one inside and one outside.
/// `Sink` takes vertex(Point2f, SColor) and triangle(unsigned, unsigned, unsigned), indices from 0.
template <class Sink>
void emitSoftShape(const std::vector<Point2f>& outline, const std::vector<Point2f>& normals, Point2f centre,
                   irr::video::SColor color, Sink sink) {
    const auto count = static_cast<unsigned>(outline.size());
    sink.vertex(centre, color);
    for (unsigned i = 0; i < count; ++i) {
        sink.vertex(outline[i] - normals[i] * softEdge, color);
        sink.vertex(outline[i] + normals[i] * softEdge, transparent(color));
    }
    for (unsigned i = 0; i < count; ++i) {
        const unsigned here = 1 + 2 * i, next = 1 + 2 * ((i + 1) % count);
        sink.triangle(0, here, next);
        sink.triangle(here, here + 1, next);
        sink.triangle(here + 1, next + 1, next);
    }
}

struct MeshSink {
    irr::scene::SMeshBuffer* mesh;

    void vertex(Point2f place, irr::video::SColor color) {
        mesh->Vertices.push_back(irr::video::S3DVertex(place.X, place.Y, 0, 0, 0, -1, color, 0, 0));
    }
    void triangle(unsigned a, unsigned b, unsigned c) {
        mesh->Indices.push_back(static_cast<irr::u16>(a));
        mesh->Indices.push_back(static_cast<irr::u16>(b));
        mesh->Indices.push_back(static_cast<irr::u16>(c));
    }
};

struct BatchSink {
    TriangleBatch& batch;
    unsigned first;

    void vertex(Point2f place, irr::video::SColor color) { batch.vertex(place, Point2f(0, 0), color); }
    void triangle(unsigned a, unsigned b, unsigned c) { batch.triangle(first + a, first + b, first + c); }
};

void startMesh(irr::scene::SMeshBuffer* mesh, const irr::video::SMaterial& look, irr::video::ITexture* texture) {
    mesh->Vertices.set_used(0);
    mesh->Indices.set_used(0);
    mesh->Material = look;
    mesh->Material.setTexture(0, texture);
}

void finishMesh(irr::scene::SMeshBuffer* mesh) {
    mesh->recalculateBoundingBox();
    mesh->setDirty();
}

Rect2f toFloat(const irr::core::rect<int>& rect) {
    return Rect2f(static_cast<float>(rect.UpperLeftCorner.X), static_cast<float>(rect.UpperLeftCorner.Y),
                  static_cast<float>(rect.LowerRightCorner.X), static_cast<float>(rect.LowerRightCorner.Y));
}

bool isEmpty(const irr::core::rect<int>& rect) {
    return rect.getWidth() < 1 || rect.getHeight() < 1;
}

} // namespace

bool Drawer2D::State::triangulate() {
    corners.clear();
    if (outline.size() < 3)
        return false;
    corners.reserve(3 * outline.size());
    Triangulate::Process(outline, corners);
    return !corners.empty();
}

void Drawer2D::State::addPlainQuad(const Rect2f& rect, irr::video::SColor color) {
    const unsigned first = batch.room(4, 6);
    for (const Point2f& place : quadOfRect(rect).corner)
        batch.vertex(place, Point2f(0, 0), color);
    batch.triangle(first, first + 1, first + 2);
    batch.triangle(first + 1, first + 3, first + 2);
}

void Drawer2D::DrawPolygon(irr::video::ITexture* texture, const std::vector<Position>& points, int width) {
    if (points.size() < 2)
        return;
    for (size_t i = 0; i < points.size(); ++i)
        DrawLine(texture, points[i], points[(i + 1) % points.size()], width);
}

void Drawer2D::DrawFilledPolygon(const std::vector<Position>& points) {
    state_->outline.clear();
    for (const Position& point : points)
        state_->outline.emplace_back(static_cast<float>(point.X), static_cast<float>(point.Y));
    if (!state_->triangulate())
        return;
    state_->batch.use(nullptr);
    for (size_t i = 0; i + 2 < state_->corners.size(); i += 3) {
        const unsigned first = state_->batch.room(3, 3);
        for (size_t k = i; k < i + 3; ++k)
            state_->batch.vertex(state_->corners[k], Point2f(0, 0), state_->colors[0]);
        state_->batch.triangle(first, first + 1, first + 2);
    }
}

void Drawer2D::draw(const ShapeMesh& shapes, PointF translation) {
    if (shapes.isEmpty())
        return;
    state_->batch.use(nullptr);
    const auto put = [&](const ShapeMesh::Vertex& vertex) {
        state_->batch.vertex(vertex.place + translation, Point2f(0, 0), irr::video::SColor(vertex.argb));
    };
    const auto count = static_cast<unsigned>(shapes.vertices.size());
    const auto indices = static_cast<unsigned>(shapes.indices.size());
    if (count <= TriangleBatch::maximumVertices && indices <= 6 * TriangleBatch::maximumVertices) {
        const unsigned first = state_->batch.room(count, indices);
        for (const ShapeMesh::Vertex& vertex : shapes.vertices)
            put(vertex);
        for (unsigned i = 0; i + 2 < indices; i += 3)
            state_->batch.triangle(first + shapes.indices[i], first + shapes.indices[i + 1],
                                   first + shapes.indices[i + 2]);
        return;
    }
    // More than a batch holds: triangle by triangle, without shared corners.
    for (unsigned i = 0; i + 2 < indices; i += 3) {
        const unsigned first = state_->batch.room(3, 3);
        for (unsigned k = i; k < i + 3; ++k)
            put(shapes.vertices[shapes.indices[k]]);
        state_->batch.triangle(first, first + 1, first + 2);
    }
}

void Drawer2D::fillPolygonMeshBuffer(irr::scene::SMeshBuffer* mesh, const std::vector<PointF>& points,
                                     irr::video::SColor color) {
    startMesh(mesh, state_->batch.material(), state_->batch.white());
    state_->outline.assign(points.begin(), points.end());
    if (state_->triangulate() && state_->corners.size() <= 65535) {
        MeshSink sink{mesh};
        for (const Point2f& corner : state_->corners)
            sink.vertex(corner, color);
        for (unsigned i = 0; i + 2 < state_->corners.size(); i += 3)
            sink.triangle(i, i + 1, i + 2);
    }
    finishMesh(mesh);
}

void Drawer2D::fillRectWithCornerMeshBuffer(irr::scene::SMeshBuffer* mesh, const irr::core::rect<int>& rect, int radius,
                                            irr::video::SColor color) {
    startMesh(mesh, state_->batch.material(), state_->batch.white());
    if (!isEmpty(rect)) {
        const Rect2f area = toFloat(rect);
        roundedRectOutline(area, static_cast<float>(radius), state_->outline, state_->normals);
        emitSoftShape(state_->outline, state_->normals, area.getCenter(), color, MeshSink{mesh});
    }
    finishMesh(mesh);
}

void Drawer2D::draw2DMeshBuffer(const irr::scene::IMeshBuffer* mesh, PointF translation, float rotationDegrees,
                                PointF scale) {
    if (!mesh || mesh->getIndexCount() == 0)
        return;
    state_->batch.flush();
    if (!state_->batch.isVisible())
        return;
    const QuadPoints axes = rotatedQuad(Point2f(0, 0), scale, rotationDegrees, Point2f(0, 0));
    irr::core::matrix4 world;
    world[0] = axes.corner[1].X;
    world[1] = axes.corner[1].Y;
    world[4] = axes.corner[2].X;
    world[5] = axes.corner[2].Y;
    world.setTranslation(irr::core::vector3df(translation.X, translation.Y, 0.0f));
    state_->batch.setPixelTransforms(world);
    irr::video::IVideoDriver* driver = device_->getVideoDriver();
    driver->setMaterial(mesh->getMaterial());
    driver->drawMeshBuffer(mesh);
    state_->batch.transformsUsed();
}

void Drawer2D::drawRectWithCorner(const irr::core::rect<int>& rect, int radius, irr::video::SColor color) {
    if (isEmpty(rect))
        return;
    const Rect2f area = toFloat(rect);
    roundedRectOutline(area, static_cast<float>(radius), state_->outline, state_->normals);
    state_->batch.use(nullptr);
    const auto points = static_cast<unsigned>(state_->outline.size());
    const unsigned first = state_->batch.room(1 + 2 * points, 9 * points);
    emitSoftShape(state_->outline, state_->normals, area.getCenter(), color, BatchSink{state_->batch, first});
}

void Drawer2D::drawFilledRect(const irr::core::rect<int>& rect, irr::video::SColor color) {
    if (isEmpty(rect))
        return;
    state_->batch.use(nullptr);
    state_->addPlainQuad(toFloat(rect), color);
}

void Drawer2D::drawOutline(const irr::core::rect<int>& rect, irr::video::SColor color, int width) {
    if (isEmpty(rect) || width < 1)
        return;
    if (2 * width >= std::min(rect.getWidth(), rect.getHeight()))
        return drawFilledRect(rect, color);
    const Rect2f outer = toFloat(rect);
    const float w = static_cast<float>(width);
    const Point2f a = outer.UpperLeftCorner, b = outer.LowerRightCorner;
    state_->batch.use(nullptr);
    state_->addPlainQuad(Rect2f(a.X, a.Y, b.X, a.Y + w), color);
    state_->addPlainQuad(Rect2f(a.X, b.Y - w, b.X, b.Y), color);
    state_->addPlainQuad(Rect2f(a.X, a.Y + w, a.X + w, b.Y - w), color);
    state_->addPlainQuad(Rect2f(b.X - w, a.Y + w, b.X, b.Y - w), color);
}

} // namespace skyvane
