#include "displays/instruments/SpeedFace.h"

#include "displays/drawing/Drawer2D.h"
#include "gui/font/FlexibleFont.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace skyvane {

namespace {

using irr::video::SColor;

const SColor white(0xffffffff);
const SColor redLine(0xffc80028);
const SColor blueLine(0xff0080ff);
const SColor greenArc(0xff007d32);
const SColor yellowArc(0xffffe11f);

constexpr double outerEnd = 0.95;
constexpr double majorInner = 0.75;
constexpr double minorInner = 0.85;
constexpr double wideArc = 0.234375;
constexpr double narrowArc = 0.1171875;
constexpr double lineWidth = 27.0 / 128.0; // of the image, whose line covers its middle eighth
constexpr double numberBox = 26.0 / 128.0;

Drawer2D::Position toPixels(double radius, irr::core::vector2d<double> direction, double fraction) {
    return {static_cast<int>(std::lround(radius + direction.X * radius * fraction)),
            static_cast<int>(std::lround(radius + direction.Y * radius * fraction))};
}

std::wstring toWide(int number) {
    return std::to_wstring(number);
}

/// Measures with the font at its present default scale.
class FontMeasure : public ITextMeasure {
public:
    explicit FontMeasure(FlexibleFont* font) : font_(font) {}
    irr::core::dimension2d<unsigned> measureNumber(int number) override {
        return font_->getDimension(toWide(number).c_str());
    }

private:
    FlexibleFont* font_;
};

} // namespace

void SpeedFace::prepare(int size, bool metric, const SpeedScale& scale, const Images& images, FlexibleFont* font) {
    if (target_ && size == size_ && metric == metric_ && font == font_ && scale == scale_)
        return;
    size_ = size;
    metric_ = metric;
    scale_ = scale;
    font_ = font;
    irr::video::IVideoDriver* driver = drawer_->getDevice()->getVideoDriver();
    static unsigned counter = 0;
    const irr::core::dimension2d<irr::u32> dimension(static_cast<irr::u32>(size), static_cast<irr::u32>(size));
    const std::string name = std::to_string(counter++) + "_siRTT.png";
    target_ = PanelTexture();
    target_ = PanelTexture(driver, driver->addRenderTargetTexture(dimension, name.c_str(), irr::video::ECF_A8R8G8B8));
    if (!target_)
        return;
    drawer_->flush();
    driver->setRenderTarget(target_.get(), true, true, SColor(0xff000000));
    driver->setViewPort({0, 0, 1, 1}); // the driver skips a viewport equal to its last, though the target changed
    drawer_->setViewPort({0, 0, size, size});
    renderGauge(size, scale, images, font);
    drawer_->flush();
    driver->setRenderTarget(nullptr, false, false);
    driver->setViewPort({0, 0, 1, 1});
    drawer_->resetViewPort();
}

void SpeedFace::renderGauge(int size, const SpeedScale& scale, const Images& images, FlexibleFont* font) {
    const double radius = 0.5 * size;
    drawer_->setColor(white);
    drawer_->Draw(images.ground->get(), {0, 0}, {size, size}, 0.0f, {0.0f, 0.0f});
    drawArcs(radius, scale, *images.plain);
    drawTicks(radius, scale, *images.line);
    if (scale.red > 0.0)
        drawMark(radius, scale.angleOf(scale.red), majorInner, redLine, *images.line, 1.6 * lineWidth);
    if (scale.blue > 0.0)
        drawMark(radius, scale.angleOf(scale.blue), majorInner, blueLine, *images.line, 1.6 * lineWidth);
    drawer_->setColor(white);
    if (font)
        drawNumbers(radius, scale, font);
}

void SpeedFace::drawArcs(double radius, const SpeedScale& scale, const PanelTexture& plain) {
    const auto arc = [&](double from, double to, double width, SColor color) {
        if (from < 0.0 || to <= from)
            return;
        drawer_->setColor(color);
        const Drawer2D::Position centre(static_cast<int>(radius), static_cast<int>(radius));
        drawer_->DrawArc(plain.get(), centre, static_cast<float>(radius * outerEnd),
                         static_cast<float>(scale.angleOf(from)), static_cast<float>(scale.angleOf(to)), 1.0f,
                         static_cast<int>(std::lround(radius * width)), 0.0f);
    };
    arc(scale.whiteStart, scale.whiteEnd, wideArc, white);
    arc(scale.greenStart, scale.greenEnd, narrowArc, greenArc);
    arc(scale.greenEnd, scale.red, narrowArc, yellowArc);
}

void SpeedFace::drawMark(double radius, double angleDegrees, double inner, SColor color, const PanelTexture& line,
                         double width) {
    const auto direction = dialDirection(angleDegrees);
    drawer_->setColor(color);
    drawer_->DrawLine(line.get(), toPixels(radius, direction, inner), toPixels(radius, direction, outerEnd),
                      static_cast<int>(std::lround(width * radius)), 0.5f);
}

void SpeedFace::drawTicks(double radius, const SpeedScale& scale, const PanelTexture& line) {
    for (const SpeedTick& tick : layoutSpeedTicks(scale))
        drawMark(radius, scale.angleOf(tick.speed), tick.major ? majorInner : minorInner, white, line, lineWidth);
}

void SpeedFace::drawNumbers(double radius, const SpeedScale& scale, FlexibleFont* font) {
    const irr::core::vector2d<float> before = font->getDefaultScale();
    const auto edge = static_cast<irr::u32>(numberBox * radius);
    const float fitting = font->calculateOptimalScale(L"00", {edge, edge});
    font->setDefaultScale({fitting, fitting});
    FontMeasure measure(font);
    for (const SpeedLabel& label : layoutSpeedLabels(scale, radius, measure))
        font->draw(toWide(label.speed).c_str(), label.box, white, true, true);
    font->setDefaultScale(before);
}

} // namespace skyvane
