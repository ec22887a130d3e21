#include "displays/informationmath/SideDrawing.h"
#include "procedures/plan/RouteProfile.h"
#include "terrain/mesh/TerrainColor.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr double hatchPixels = 16.0;
constexpr int bodyBands = 12;

uint32_t colorOf(const RouteProfile& profile, float height) {
    return calcTerrainColor(0.0f, height, profile.minimum, profile.maximum, false, false, TerrainShading::Shader);
}

/// From the line of the ground down, in bands between heights of which the colours are those of the terrain's picture.
void addBody(ShapeMesh& mesh, const SideScene& scene, size_t begin, size_t end) {
    const RouteProfile& profile = *scene.profile;
    const float step = std::max(1.0f, profile.maximum - profile.minimum) / static_cast<float>(bodyBands);
    constexpr auto perColumn = static_cast<uint32_t>(bodyBands) + 1;
    for (size_t i = begin; i < end; ++i) {
        const auto x = static_cast<float>(scene.axes.xOf(static_cast<double>(i)));
        for (int band = 0; band <= bodyBands; ++band) {
            const float height = std::min(profile.heights[i], profile.minimum + step * static_cast<float>(band));
            const auto y = static_cast<float>(scene.axes.yOf(static_cast<double>(height)));
            const uint32_t here = mesh.add({x, y}, colorOf(profile, height));
            if (i > begin && band > 0)
                mesh.quad(here - 1, here, here - perColumn, here - perColumn - 1);
        }
    }
}

/// Slanting lines all the way up: the ground may reach anywhere there.
void addHatching(SideTools& tools, const SideScene& scene, size_t begin, size_t end) {
    const ShapeRect& panel = scene.axes.panel;
    const double half = 0.5;
    const double left = std::max(panel.UpperLeftCorner.X, scene.axes.xOf(static_cast<double>(begin) - half));
    const double right = std::min(panel.LowerRightCorner.X, scene.axes.xOf(static_cast<double>(end) - half));
    const double height = panel.getHeight(), bottom = panel.LowerRightCorner.Y;
    const Stroke line{2.0f, SideColor::unknown, false, 0.0f, 0.0f};
    for (double foot = left - height; foot < right; foot += hatchPixels) {
        const double from = std::max(foot, left), to = std::min(foot + height, right);
        if (from >= to)
            continue;
        tools.path.clear();
        tools.path.emplace_back(from, bottom - (from - foot));
        tools.path.emplace_back(to, bottom - (to - foot));
        addStroke(tools.canvas.layers[BarCanvas::Ground].shapes, tools.path, line, panel);
    }
    BarText words;
    words.text = L"NO TERRAIN";
    words.height = scene.textHeight;
    words.argb = SideColor::dim;
    const double from = std::max(left, freeRectOf(scene).UpperLeftCorner.X);
    if (right - from < 1.3 * tools.measure.measure(words.text, words.height))
        return;
    words.place = ShapePoint(0.5 * (from + right), bottom - scene.scaleHeight - 1.5 * scene.textHeight);
    tools.pen.text(BarCanvas::Scale, words);
}

void addLine(SideTools& tools, const SideScene& scene, size_t begin, size_t end) {
    // Ground as low as the lowest lies on the edge of the picture, where half of the line would be lost.
    const double lowest = scene.axes.panel.LowerRightCorner.Y - 1.0;
    tools.path.clear();
    for (size_t i = begin; i < end; ++i) {
        ShapePoint point = scene.axes.toScreen(static_cast<double>(i), static_cast<double>(scene.profile->heights[i]));
        point.Y = std::min(point.Y, lowest);
        tools.path.push_back(point);
    }
    addStroke(tools.canvas.layers[BarCanvas::Scale].shapes, tools.path, {2.0f, SideColor::ground, false, 0.0f, 0.0f},
              scene.axes.panel);
}

} // namespace

void addSideGround(SideTools& tools, const SideScene& scene) {
    const std::vector<uint8_t>& known = scene.profile->known;
    const size_t end = std::min(scene.axes.end(), known.size());
    for (size_t i = std::min(scene.axes.begin(), end); i < end;) {
        size_t stop = i + 1;
        while (stop < end && known[stop] == known[i])
            ++stop;
        if (!known[i]) {
            addHatching(tools, scene, i, stop);
        } else {
            if (scene.isAhead)
                addBody(tools.canvas.layers[BarCanvas::Ground].shapes, scene, i, stop);
            addLine(tools, scene, i, stop);
        }
        i = stop;
    }
}

} // namespace skyvane
