#include "displays/vision/bars/BarPainter.h"

#include "core/Context.h"
#include "displays/drawing/Drawer2D.h"
#include "gui/skin/Skin.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

using irr::core::rect;

const irr::video::SColor white(0xffffffff), black(0xff000000), red(BarColor::failed);

rect<int> toPixels(const ShapeRect& place) {
    const auto pixel = [](double value) { return static_cast<int>(std::lround(value)); };
    return {pixel(place.UpperLeftCorner.X), pixel(place.UpperLeftCorner.Y), pixel(place.LowerRightCorner.X),
            pixel(place.LowerRightCorner.Y)};
}

} // namespace

BarPainter::BarPainter(Context* context)
    : context_(context), drawer_(context->getDrawer()), images_{loadPanelImage(context, "media/pfdSpeedBar.png"),
                                                                loadPanelImage(context, "media/pfd_ptr.png"),
                                                                loadPanelImage(context, "media/aoa.png"),
                                                                loadPanelImage(context, "media/aoaPointer.png")},
      flagView_(context->getDrawer()), words_(context) {}

void BarPainter::paint(const BarCanvas& canvas) {
    for (const BarCanvas::Layer& layer : canvas.layers) {
        paintPictures(layer.pictures);
        paintPanes(layer.panes);
        if (!layer.shapes.isEmpty())
            drawer_->draw(layer.shapes);
        drawer_->flush();
        words_.draw(layer.texts);
    }
    const size_t count = std::min(canvas.crosses.size(), names_.size());
    for (size_t i = 0; i < count; ++i)
        paintCross(canvas.crosses[i], names_[i]);
}

void BarPainter::paintPictures(const std::vector<BarPicture>& pictures) {
    for (const BarPicture& each : pictures) {
        drawer_->setColor(irr::video::SColor(each.argb));
        drawer_->setMirroring(each.isMirrored, false);
        drawer_->Draw(images_[each.kind].get(), toPixels(each.place));
    }
    drawer_->setMirroring(false, false);
    drawer_->setColor(white);
}

void BarPainter::paintPanes(const std::vector<BarPane>& panes) {
    static const char* const names[BarPane::kinds] = {"pfdRect", "pfdLabel", "pfdLabel2"};
    for (const BarPane& each : panes)
        if (const ButtonTexture* pane = context_->getSkin()->getButtonTexture(names[each.kind]))
            pane->drawTinted(toPixels(each.place), nullptr, irr::video::SColor(each.argb));
}

void BarPainter::paintCross(const BarCanvas::Cross& cross, DialText& name) {
    const rect<int> place = toPixels(cross.place);
    flagView_.drawCross(place);
    const int width = std::min(place.getWidth() * 9 / 10, 3 * place.getHeight() / 2), half = width * 9 / 40;
    const irr::core::vector2d<int> middle = place.getCenter();
    const rect<int> box(middle.X - width / 2, middle.Y - half, middle.X + width / 2, middle.Y + half);
    drawer_->drawFilledRect(box, black);
    drawer_->drawOutline(box, red, std::max(2, half / 10));
    drawer_->flush();
    const int margin = std::max(2, half / 4);
    name.draw(context_->getFlexibleFont(), cross.name, L"MMM",
              {box.UpperLeftCorner.X + margin, box.UpperLeftCorner.Y + margin, box.LowerRightCorner.X - margin,
               box.LowerRightCorner.Y - margin},
              red);
}

} // namespace skyvane
