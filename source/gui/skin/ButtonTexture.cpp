#include "gui/skin/ButtonTexture.h"

#include "displays/drawing/Drawer2D.h"
#include "gui/layoutmath/NineParts.h"

#include <algorithm>

namespace skyvane {

using irr::core::rect;
using irr::video::SColor;

namespace {

constexpr std::array<float, 4> textureCuts{0.0f, 0.25f, 0.75f, 1.0f};
const SColor white[4] = {SColor(0xffffffff), SColor(0xffffffff), SColor(0xffffffff), SColor(0xffffffff)};

/// Panes are drawn about as large as they are: smaller copies would only blur them.
irr::video::ITexture* loadWithoutMipMaps(irr::video::IVideoDriver* driver, const std::string& file) {
    const bool former = driver->getTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS);
    driver->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, false);
    irr::video::ITexture* texture = driver->getTexture(file.c_str());
    driver->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, former);
    return texture;
}

float shareOf(int value, int from, int to) {
    return to > from ? static_cast<float>(value - from) / static_cast<float>(to - from) : 0.0f;
}

/// The colour at a place of a rectangle whose corners have the four colours.
SColor colorAt(const SColor* four, float right, float down) {
    const SColor top = four[1].getInterpolated(four[0], right);
    const SColor bottom = four[3].getInterpolated(four[2], right);
    return bottom.getInterpolated(top, down);
}

} // namespace

ButtonTexture::ButtonTexture(irr::video::IVideoDriver* driver, Drawer2D* drawer, const std::string& file,
                             float cornerOfShort, float cornerOfScreen)
    : driver_(driver), drawer_(drawer),
      texture_(EngineRef<irr::video::ITexture>::share(loadWithoutMipMaps(driver, file))), cornerOfShort_(cornerOfShort),
      cornerOfScreen_(cornerOfScreen) {}

int ButtonTexture::cornerOf(const rect<int>& area) const {
    const irr::core::dimension2d<irr::u32> screen = driver_->getCurrentRenderTargetSize();
    return cornerSize(area, static_cast<int>(std::min(screen.Width, screen.Height)), cornerOfShort_, cornerOfScreen_);
}

void ButtonTexture::drawButton(const rect<int>& area, const rect<int>* clip, const SColor* tint, bool noInset) const {
    const int corner = cornerOf(area);
    rect<int> seen = area;
    if (!noInset) {
        seen.UpperLeftCorner += irr::core::position2di(corner, corner);
        seen.LowerRightCorner -= irr::core::position2di(corner, corner);
    }
    drawRectWithCorner(seen, clip, corner, tint ? tint : white);
}

void ButtonTexture::drawTinted(const rect<int>& area, const rect<int>* clip, SColor tint) const {
    const SColor four[4] = {tint, tint, tint, tint};
    drawButton(area, clip, four);
}

void ButtonTexture::drawFrame(const rect<int>& area, const rect<int>* clip, SColor tint) const {
    const SColor four[4] = {tint, tint, tint, tint};
    drawRectWithCorner(area, clip, cornerOf(area), four, false);
}

void ButtonTexture::drawRectWithCorner(const rect<int>& area, const rect<int>* clip, int corner, const SColor* tint,
                                       bool isFilled) const {
    if (!texture_)
        return;
    const NineParts parts = nineParts(area, corner);
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            if (isFilled || row != 1 || column != 1)
                drawPart(parts, column, row, clip, tint);
    drawer_->setTextureCoordinates(nullptr);
    drawer_->setColor(SColor(0xffffffff));
    drawer_->flush();
}

void ButtonTexture::drawPart(const NineParts& parts, std::size_t column, std::size_t row, const rect<int>* clip,
                             const SColor* tint) const {
    Drawer2D::PointF coordinates[4];
    SColor colors[4];
    for (std::size_t i = 0; i < 4; ++i) {
        const std::size_t x = column + i % 2, y = row + i / 2;
        coordinates[i].set(textureCuts[x], textureCuts[y]);
        colors[i] =
            colorAt(tint, shareOf(parts.x[x], parts.x[0], parts.x[3]), shareOf(parts.y[y], parts.y[0], parts.y[3]));
    }
    drawer_->setTextureCoordinates(coordinates);
    drawer_->setColors(colors);
    drawer_->Draw(texture_.get(), {parts.x[column], parts.y[row], parts.x[column + 1], parts.y[row + 1]}, clip);
}

} // namespace skyvane
