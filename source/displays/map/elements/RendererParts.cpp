#include "displays/map/elements/RendererParts.h"

#include <algorithm>

namespace skyvane {

void renderPointSketch(RendererParts& parts, const irr::core::rect<int>& rect, const ElementSymbol& symbol,
                       const SymbolColors& colors, const std::vector<std::string>& lines) {
    const SketchFrame frame = parts.painter.frameFor(rect);
    if (frame.size.Width < 4 || frame.size.Height < 4)
        return;
    SketchPlan plan;
    addSketchGround(plan, frame);
    const auto count = std::count_if(lines.begin(), lines.end(), [](const auto& line) { return !line.empty(); });
    const double height = 1.25 * sketchTextHeight(frame), w = frame.size.Width, h = frame.size.Height;
    const double textRoom = 1.15 * height * static_cast<double>(count), room = h - textRoom - 0.4 * height;
    const double edge = std::min({0.8 * room, 0.5 * w, 5.5 * height});
    const ShapePoint middle(0.5 * w, 0.5 * (h - textRoom));
    if (edge >= 8.0) {
        parts.painter.setPicture(symbol.halo, middle, edge, colors.halo);
        parts.painter.setPicture(symbol.shape, middle, edge, colors.shape);
    }
    double y = middle.Y + 0.5 * std::max(0.0, edge) + 0.7 * height;
    for (const std::string& line : lines) {
        if (line.empty())
            continue;
        const double width = frame.widthOf(line, height);
        plan.texts.push_back(
            {line, {0.5 * w, y}, height * std::min(1.0, 0.94 * w / std::max(1.0, width)), 0.0, 0xffffffff});
        y += 1.15 * height;
    }
    parts.painter.draw(plan, rect);
}

} // namespace skyvane
