#include "displays/vision/SceneFlags.h"

#include "core/Context.h"
#include "core/geometry/Rectangles.h"
#include "displays/drawing/Drawer2D.h"

#include <algorithm>

namespace skyvane {
namespace {

using irr::core::rect;

const irr::video::SColor black(0xff000000), amber(0xffffc31f), red(0xfff01c28);
constexpr size_t terrainWords = 4;

} // namespace

SceneFlags::SceneFlags(Context* context)
    : context_(context), drawer_(context->getDrawer()), flagView_(context->getDrawer()) {}

void SceneFlags::drawBox(size_t which, const wchar_t* words, const rect<int>& box, irr::video::SColor color) {
    drawer_->drawFilledRect(box, black);
    drawer_->drawOutline(box, color, std::max(2, box.getHeight() / 14));
    drawer_->flush();
    const int margin = box.getHeight() / 6;
    words_[which].draw(context_->getFlexibleFont(), words, nullptr,
                       {box.UpperLeftCorner.X + margin, box.UpperLeftCorner.Y + margin, box.LowerRightCorner.X - margin,
                        box.LowerRightCorner.Y - margin},
                       color);
}

void SceneFlags::draw(const rect<int>& panel, const rect<int>& free, const rect<int>& corner, const SceneTrust& trust,
                      bool standsIn, bool terrainIncomplete) {
    if (standsIn) {
        rect<int> square = free;
        makeQuadratic(square);
        flagView_.drawCross(square);
        drawer_->flush();
        flagView_.drawWords(DialFlag::Failed, square, context_->getFlexibleFont(), L"ATT");
    }
    const struct {
        const wchar_t* name;
        bool failed;
    } sources[] = {{L"ATT", !standsIn && !isValueShown(trust.attitude)},
                   {L"POS", !isValueShown(trust.position)},
                   {L"ALT", !isValueShown(trust.altitude)},
                   {L"HDG", !isValueShown(trust.heading)}};
    const int height = std::max(20, panel.getHeight() / 18), gap = height / 4;
    // All that can fail at once fits between the tapes.
    const int width = std::min(5 * height / 2, (free.getWidth() - 3 * gap) / 4);
    const int count = static_cast<int>(
        std::count_if(std::begin(sources), std::end(sources), [](const auto& each) { return each.failed; }));
    int left = free.getCenter().X - (count * (width + gap) - gap) / 2;
    const int top = panel.UpperLeftCorner.Y + panel.getHeight() * 3 / 4;
    for (size_t i = 0; i < terrainWords; ++i) {
        if (!sources[i].failed)
            continue;
        drawBox(i, sources[i].name, {left, top, left + width, top + height}, red);
        left += width + gap;
    }
    if (!terrainIncomplete)
        return;
    const int line = height * 5 / 6, middle = free.getCenter().X, y = top + height + gap;
    int half = std::min(free.getWidth() / 2, height * 5);
    if (y + line > corner.UpperLeftCorner.Y)
        half = std::min(half, middle - corner.LowerRightCorner.X - gap);
    drawBox(terrainWords, L"TERRAIN INCOMPLETE", {middle - half, y, middle + half, y + line}, amber);
}

} // namespace skyvane
