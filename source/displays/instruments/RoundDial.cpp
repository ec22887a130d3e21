#include "displays/instruments/RoundDial.h"

#include "core/Context.h"
#include "core/geometry/Rectangles.h"
#include "core/log/Logger.h"
#include "displays/drawing/Drawer2D.h"

#include <cmath>
#include <string>

namespace skyvane {

namespace {

const irr::video::SColor white(0xffffffff);
constexpr int smallestEdge = 8;

} // namespace

RoundDial::RoundDial(Context* context)
    : IPanel(context), drawer_(context->getDrawer()), sensors_(context->getSensorManager()),
      bezel_(loadImage("media/gauge_back_alpha.png")), flagView_(context->getDrawer()) {}

PanelTexture RoundDial::loadOrnament(const char* path) const {
    return PanelTexture(drawer_->getDevice()->getVideoDriver(), context_->getPath(path));
}

PanelTexture RoundDial::loadImage(const char* path) {
    PanelTexture image = loadOrnament(path);
    if (!image && complete_) {
        complete_ = false;
        logText("A dial can't be drawn without its image " + std::string(path) + ".\n");
    }
    return image;
}

void RoundDial::render(irr::core::rect<int> rect) {
    makeQuadratic(rect);
    if (rect.getWidth() < smallestEdge)
        return;
    const DialFrame frame(rect.getWidth());
    const DialEvidence evidence = readValue();
    const DialFlag flag = complete_ ? decideDialFlag(evidence) : DialFlag::Failed;
    if (complete_)
        prepare(frame);
    drawer_->setViewPort(rect);
    drawer_->setColor(white);
    if (complete_) {
        drawLayers(frame, flag);
        drawer_->setColor(white);
        drawSquare(bezel_, frame);
        drawAboveBezel(frame, flag);
    }
    flagView_.drawShapes(flag, frame);
    drawer_->resetViewPort();
    if (isValueShown(flag))
        drawTexts(rect);
    flagView_.drawWords(flag, rect, context_->getFlexibleFont(), failureName());
}

void RoundDial::drawFace(const PanelTexture& image, const DialFrame& frame, double rotationDegrees) const {
    drawer_->Draw(image.get(), frame.centre, {frame.faceSize, frame.faceSize}, static_cast<float>(rotationDegrees),
                  {0.5f, 0.5f});
}

void RoundDial::drawFacePart(const PanelTexture& image, const irr::core::rect<float>& part, const DialFrame& frame,
                             double rotationDegrees) const {
    const irr::core::vector2d<float> from = part.UpperLeftCorner;
    const irr::core::vector2d<float> pivot((0.5f - from.X) / part.getWidth(), (0.5f - from.Y) / part.getHeight());
    drawer_->Draw(image.get(), frame.centre,
                  {static_cast<int>(std::lround(part.getWidth() * static_cast<float>(frame.faceSize))),
                   static_cast<int>(std::lround(part.getHeight() * static_cast<float>(frame.faceSize)))},
                  static_cast<float>(rotationDegrees), pivot);
}

void RoundDial::drawHand(const PanelTexture& image, const DialFrame& frame, double rotationDegrees) const {
    drawFacePart(image, {0.4375f, 0.0f, 0.5625f, 1.0f}, frame, rotationDegrees);
}

irr::core::rect<int> RoundDial::facePart(const irr::core::rect<float>& part, const DialFrame& frame) {
    const auto pixel = [&frame](int centre, float fraction) {
        return centre + static_cast<int>(std::lround((fraction - 0.5f) * static_cast<float>(frame.faceSize)));
    };
    return {pixel(frame.centre.X, part.UpperLeftCorner.X), pixel(frame.centre.Y, part.UpperLeftCorner.Y),
            pixel(frame.centre.X, part.LowerRightCorner.X), pixel(frame.centre.Y, part.LowerRightCorner.Y)};
}

void RoundDial::drawSquare(const PanelTexture& image, const DialFrame& frame) const {
    drawer_->Draw(image.get(), {0, 0}, {frame.edge, frame.edge}, 0.0f, {0.0f, 0.0f});
}

void RoundDial::drawDarkGround(const DialFrame& frame) const {
    drawer_->drawFilledRect({0, 0, frame.edge, frame.edge}, irr::video::SColor(0xff0b0e12));
}

irr::video::SColor RoundDial::scaleColor(DialFlag flag) {
    return flag == DialFlag::Failed ? irr::video::SColor(0xff606060) : DialFlagView::markingColor(flag);
}

} // namespace skyvane
