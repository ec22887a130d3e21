#include "displays/instruments/DialFlagView.h"

#include "core/engine/MipmappedTexture.h"
#include "core/geometry/Rectangles.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/FlagMasks.h"

namespace skyvane {

namespace {

using irr::video::SColor;

const SColor white(0xffffffff);
const SColor black(0xff000000);
const SColor yellow(0xffffe11f);
const SColor red(0xfff01c28);
const SColor simulationBlue(0xff4fc3ff);

/// A white texture whose alpha is the mask; the driver's own when a dial has asked for it before.
PanelTexture makeMask(irr::video::IVideoDriver* driver, const char* name, double (*coverage)(double, double, double)) {
    constexpr irr::u32 size = 256;
    if (irr::video::ITexture* shared = driver->findTexture(name))
        return PanelTexture(driver, shared);
    const auto image = EngineRef<irr::video::IImage>::adopt(
        driver->createImage(irr::video::ECF_A8R8G8B8, irr::core::dimension2d<irr::u32>(size, size)));
    if (!image)
        return PanelTexture();
    // Both shapes are symmetric: a quarter is computed, the rest mirrored.
    for (irr::u32 y = 0; y < size / 2; ++y) {
        for (irr::u32 x = 0; x < size / 2; ++x) {
            const double alpha = coverage((x + 0.5) / size, (y + 0.5) / size, 1.5 / size);
            const SColor color(static_cast<irr::u32>(alpha * 255.0 + 0.5), 255, 255, 255);
            for (const irr::u32 row : {y, size - 1 - y})
                for (const irr::u32 column : {x, size - 1 - x})
                    image->setPixel(column, row, color);
        }
    }
    return PanelTexture(driver, addMipmappedTexture(driver, name, *image));
}

} // namespace

DialFlagView::DialFlagView(Drawer2D* drawer)
    : drawer_(drawer), cross_(makeMask(drawer->getDevice()->getVideoDriver(), "skyvane_flag_cross", crossCoverage)),
      ring_(makeMask(drawer->getDevice()->getVideoDriver(), "skyvane_flag_ring", ringCoverage)) {}

SColor DialFlagView::markingColor(DialFlag flag) {
    return flag == DialFlag::Doubtful ? yellow : white;
}

SColor DialFlagView::flagColor(DialFlag flag) {
    switch (flag) {
    case DialFlag::Doubtful:
        return yellow;
    case DialFlag::Failed:
        return red;
    case DialFlag::Simulated:
        return simulationBlue;
    default:
        return white;
    }
}

void DialFlagView::drawShapes(DialFlag flag, const DialFrame& frame) {
    if (flag != DialFlag::Doubtful && flag != DialFlag::Failed)
        return;
    const bool failed = flag == DialFlag::Failed;
    drawer_->setColor(failed ? red : yellow);
    drawer_->Draw((failed ? cross_ : ring_).get(), {0, 0}, {frame.edge, frame.edge}, 0.0f, {0.0f, 0.0f});
    drawer_->setColor(white);
}

void DialFlagView::drawCross(const irr::core::rect<int>& rect) {
    // The arms reach from 0.2 to 0.8 of the mask.
    const Drawer2D::PointF arms[4] = {{0.16f, 0.16f}, {0.84f, 0.16f}, {0.16f, 0.84f}, {0.84f, 0.84f}};
    drawer_->setColor(red);
    drawer_->setTextureCoordinates(arms);
    drawer_->Draw(cross_.get(), rect);
    drawer_->setTextureCoordinates(nullptr);
    drawer_->setColor(white);
}

irr::core::rect<int> DialFlagView::crossPlace(const irr::core::rect<int>& rect) {
    constexpr float widest = 2.2f;
    return rect.getWidth() > widest * rect.getHeight() ? makeXic(rect, widest) : rect;
}

void DialFlagView::drawWords(DialFlag flag, const irr::core::rect<int>& square, FlexibleFont* font,
                             const wchar_t* name) {
    if (flag != DialFlag::Simulated && flag != DialFlag::Failed)
        return;
    // A failure has the middle to itself; the other word leaves the value free.
    const bool failed = flag == DialFlag::Failed;
    const SColor color = failed ? red : simulationBlue;
    const double middle = failed ? 0.5 : 0.63, width = failed ? 0.36 : 0.19, height = failed ? 0.16 : 0.085;
    const irr::core::rect<int> box = boxInSquare(square, 0.5, middle, width, height);
    drawer_->drawFilledRect(box, black);
    drawer_->drawOutline(box, color, 1 + square.getWidth() / 200);
    drawer_->flush();
    words_.draw(font, failed ? name : L"SIM", L"MMM", boxInSquare(square, 0.5, middle, 0.9 * width, 0.95 * height),
                color);
}

} // namespace skyvane
