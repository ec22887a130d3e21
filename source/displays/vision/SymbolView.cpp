#include "displays/vision/SymbolView.h"

#include "core/Context.h"
#include "displays/drawing/Drawer2D.h"
#include "gui/font/FlexibleFont.h"
#include "gui/font/RimmedLetters.h"

#include <cmath>
#include <cstdlib>
#include <cwchar>

namespace skyvane {
namespace {

/// Of the panel's height, the least that is shown of sky and of ground.
constexpr double sliverShare = 0.09;

} // namespace

SymbolView::SymbolView(Context* context)
    : context_(context), drawer_(context->getDrawer()), pictures_{loadPanelImage(context, "media/pfdBankBg.png"),
                                                                  loadPanelImage(context, "media/pfdBankArrow.png"),
                                                                  loadPanelImage(context, "media/pfdBankArrow2.png"),
                                                                  loadPanelImage(context, "media/pfdFrame.png")} {}

void SymbolView::draw(const Scene& scene) {
    const Lens lens(scene.rect.getWidth(), scene.rect.getHeight());
    const uint32_t color = scene.isDoubtful ? GlassSymbols::doubtfulColor : GlassSymbols::ladderColor;
    GlassSymbols symbols(lens, scene.free);
    const PitchLadder ladder(scene.pose, lens, symbols.getLadderReach());
    HorizonLine horizon = calcHorizon(scene.pose, lens);
    const HorizonLine seen = horizon;
    drawer_->setViewPort(scene.rect);
    shapes_.clear();
    if (keepInView(horizon, lens, sliverShare * lens.height))
        symbols.addSliver(shapes_, horizon);
    symbols.addHorizon(shapes_, horizon, color);
    symbols.addLadder(shapes_, ladder, color);
    drawer_->draw(shapes_);
    if (scene.hasBankScale)
        drawBankScale(scene, symbols, scene.isDoubtful ? GlassSymbols::doubtfulColor : GlassSymbols::markColor);
    draw(symbols.getFrame(), irr::video::SColor(0xffffffff));
    shapes_.clear();
    if (const auto path = scene.velocity ? lens.project(scene.pose, *scene.velocity) : std::nullopt)
        symbols.addFlightPath(shapes_, *path);
    symbols.addChevrons(shapes_, seen, scene.pitchDegrees, scene.bankDegrees);
    drawer_->draw(shapes_);
    drawer_->resetViewPort();
    drawNumbers(scene, symbols, ladder, irr::video::SColor(color));
}

void SymbolView::draw(const GlassPicture& picture, irr::video::SColor color) {
    const auto pixel = [](double value) { return static_cast<int>(std::lround(value)); };
    drawer_->setColor(color);
    drawer_->Draw(pictures_[picture.kind].get(), {pixel(picture.place.X), pixel(picture.place.Y)},
                  {pixel(picture.size.X), pixel(picture.size.Y)}, static_cast<float>(picture.rotationDegrees),
                  {static_cast<float>(picture.pivot.X), static_cast<float>(picture.pivot.Y)});
    drawer_->setColor(irr::video::SColor(0xffffffff));
}

void SymbolView::drawBankScale(const Scene& scene, const GlassSymbols& symbols, uint32_t color) {
    draw(symbols.getBankScale(scene.bankDegrees), irr::video::SColor(color));
    draw(symbols.getBankPointer(), irr::video::SColor(0xffffffff));
    if (scene.sideways)
        draw(symbols.getBall(*scene.sideways), irr::video::SColor(color));
}

void SymbolView::drawNumbers(const Scene& scene, const GlassSymbols& symbols, const PitchLadder& ladder,
                             irr::video::SColor color) {
    FlexibleFont* font = context_->getFlexibleFont();
    if (!font)
        return;
    const RimmedLetters rimmed(*font); // which show on snow
    for (const PitchRung& rung : ladder) {
        const int pitch = std::abs(rung.pitchDegrees);
        if (!rung.isLong || pitch == 0)
            continue;
        CachedText& number = numbers_[static_cast<size_t>(pitch / 10)];
        wchar_t digits[4];
        std::swprintf(digits, 4, L"%d", pitch);
        number.set(font, digits, color);
        const auto height = static_cast<float>(number.getDimension().Height);
        const float scale = height > 0.0f ? static_cast<float>(symbols.getNumberHeight()) * 1.6f / height : 1.0f;
        const double rotation = -std::atan2(rung.along.Y, rung.along.X) * 57.29577951308232;
        for (const int side : {-1, 1}) {
            const Lens::Point place = symbols.getNumberPlace(rung, side);
            number.drawRotated(scene.rect, {static_cast<float>(place.X), static_cast<float>(place.Y)}, {scale, scale},
                               static_cast<float>(rotation));
        }
    }
}

} // namespace skyvane
