#include "displays/map/elements/SketchPainter.h"

#include "core/Context.h"
#include "core/text/Utf8.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "gui/font/FlexibleFont.h"
#include "gui/font/RimmedLetters.h"

#include <cmath>
#include <optional>

namespace skyvane {

namespace {

using irr::core::rect;

/// Letters below have no rim.
constexpr double leastRimmedHeight = 17.0;

irr::core::dimension2d<irr::u32> sizeOf(const FlexibleFont& font, const std::wstring& text) {
    return font.getDimensionWithTabs(text.c_str(), font.getDefaultTabSize(), {1.0f, 1.0f});
}

} // namespace

SketchFrame SketchPainter::frameFor(const rect<int>& place) const {
    FlexibleFont* font = context_->getFlexibleFont();
    const auto widthOf = [font](const std::string& text, double height) {
        if (!font)
            return 0.5 * height * static_cast<double>(text.size());
        const auto size = sizeOf(*font, decodeUtf8(text));
        return size.Height > 0 ? height * size.Width / size.Height : 0.0;
    };
    return {{place.getWidth(), place.getHeight()}, context_->getPanelManager()->isMetric(), widthOf};
}

void SketchPainter::setPicture(irr::video::ITexture* texture, const ShapePoint& middle, double edge,
                               irr::video::SColor color) {
    const auto low = irr::core::vector2d<int>(static_cast<int>(std::lround(middle.X - 0.5 * edge)),
                                              static_cast<int>(std::lround(middle.Y - 0.5 * edge)));
    const int size = static_cast<int>(std::lround(edge));
    pictures_.push_back({texture, rect<int>(low.X, low.Y, low.X + size, low.Y + size), color});
}

void SketchPainter::draw(const SketchPlan& plan, const rect<int>& place) {
    Drawer2D& drawer = *context_->getDrawer();
    drawer.flush();
    const rect<int> former = context_->getIrrlichtDevice()->getVideoDriver()->getViewPort();
    const rect<int> screen = place + former.UpperLeftCorner;
    drawer.setViewPort(screen);
    drawer.draw(plan.shapes);
    for (const Picture& picture : pictures_) {
        drawer.setColor(picture.color);
        drawer.Draw(picture.texture, picture.place);
    }
    drawer.setColor(irr::video::SColor(0xffffffff));
    pictures_.clear();
    drawTexts(plan, screen);
    drawer.setViewPort(former);
}

void SketchPainter::drawTexts(const SketchPlan& plan, const rect<int>& place) {
    FlexibleFont* font = context_->getFlexibleFont();
    if (!font)
        return;
    while (texts_.size() < plan.texts.size())
        texts_.push_back(std::make_unique<Text>());
    for (size_t i = 0; i < plan.texts.size(); ++i) {
        const SketchText& text = plan.texts[i];
        Text& kept = *texts_[i];
        const bool isSame = kept.words == text.text;
        kept.words = text.text;
        const std::wstring letters = isSame ? std::wstring() : decodeUtf8(text.text);
        kept.mesh.set(font, isSame ? kept.mesh.getText().c_str() : letters.c_str(), irr::video::SColor(text.argb));
        const auto lineHeight = sizeOf(*font, L"0").Height;
        const float scale = lineHeight > 0 ? static_cast<float>(text.height) / static_cast<float>(lineHeight) : 1.0f;
        // Small letters have no room for a rim.
        std::optional<RimmedLetters> rim;
        if (text.height >= leastRimmedHeight)
            rim.emplace(*font);
        kept.mesh.drawRotated(place, {static_cast<float>(text.middle.X), static_cast<float>(text.middle.Y)},
                              {scale, scale}, static_cast<float>(text.turnDegrees));
    }
}

} // namespace skyvane
