#include "displays/visionmath/SceneShapes.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double longestMetres = 20000.0;

} // namespace

uint16_t SceneShapes::add(const Place& place, uint32_t argb) {
    vertices.push_back({{static_cast<float>(place.X), static_cast<float>(place.Y), static_cast<float>(place.Z)}, argb});
    return static_cast<uint16_t>(vertices.size() - 1);
}

void SceneShapes::addTriangle(uint16_t a, uint16_t b, uint16_t c) {
    for (const uint16_t index : {a, b, c})
        indices.push_back(index);
}

/// None for a strip that has no length, or one that no runway has.
int SceneShapes::piecesOf(double length, double pieceMetres) {
    if (!(length > 0.1) || length > longestMetres)
        return 0;
    return static_cast<int>(std::ceil(length / std::max(pieceMetres, 1.0)));
}

uint32_t SceneShapes::shaded(uint32_t argb, double light) {
    uint32_t result = argb & 0xff000000u;
    for (const unsigned shift : {0u, 8u, 16u})
        result |= static_cast<uint32_t>(((argb >> shift) & 0xffu) * light) << shift;
    return result;
}

void SceneShapes::addQuad(const Place& a, const Place& b, const Place& c, const Place& d, uint32_t argb) {
    if (!hasRoom(4))
        return;
    const uint16_t first = add(a, argb);
    for (const Place* each : {&b, &c, &d})
        add(*each, argb);
    addTriangle(first, static_cast<uint16_t>(first + 1), static_cast<uint16_t>(first + 2));
    addTriangle(first, static_cast<uint16_t>(first + 2), static_cast<uint16_t>(first + 3));
}

void SceneShapes::addSpire(const Place& base, double tipHeight, double radius, uint32_t argb) {
    if (!hasRoom(9))
        return;
    constexpr double third = 2.0943951023931953;
    for (int side = 0; side < 3; ++side) {
        const auto corner = [&](int i) {
            return Place(base.X + radius * std::sin(i * third), base.Y, base.Z + radius * std::cos(i * third));
        };
        const uint32_t color = shaded(argb, 1.0 - 0.2 * side);
        const uint16_t first = add(corner(side), color);
        add(corner(side + 1), color);
        add({base.X, tipHeight, base.Z}, color);
        addTriangle(first, static_cast<uint16_t>(first + 1), static_cast<uint16_t>(first + 2));
    }
}

void SceneShapes::addDiamond(const Place& centre, double radius, double height, uint32_t argb) {
    if (!hasRoom(24))
        return;
    const Place ring[] = {{radius, 0, 0}, {0, 0, radius}, {-radius, 0, 0}, {0, 0, -radius}};
    for (int side = 0; side < 4; ++side)
        for (const double end : {1.0, -1.0}) {
            const uint32_t color = shaded(argb, (end > 0.0 ? 1.0 : 0.7) - 0.1 * (side % 2));
            const uint16_t first = add(centre + ring[side], color);
            add(centre + ring[(side + 1) % 4], color);
            add(centre + Place(0.0, end * height, 0.0), color);
            addTriangle(first, static_cast<uint16_t>(first + 1), static_cast<uint16_t>(first + 2));
        }
}

} // namespace skyvane
