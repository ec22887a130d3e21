#include "gui/elements/BeautifulGUIImage.h"

#include "displays/drawing/Drawer2D.h"

namespace skyvane {

BeautifulGUIImage::BeautifulGUIImage(irr::gui::IGUIEnvironment* environment, Drawer2D* drawer,
                                     irr::video::ITexture* texture, const std::array<irr::video::SColor, 4>& colors,
                                     const LayoutWish& wish, int id, void* data)
    : AggregatableGUIElement(environment, wish, id, data), drawer_(drawer),
      texture_(EngineRef<irr::video::ITexture>::share(texture)), colors_(colors) {}

void BeautifulGUIImage::setTexture(irr::video::ITexture* texture) {
    texture_ = EngineRef<irr::video::ITexture>::share(texture);
}

void BeautifulGUIImage::draw() {
    if (!isVisible())
        return;
    drawer_->setColors(colors_.data());
    drawer_->Draw(texture_.get(), AbsoluteRect, &AbsoluteClippingRect);
    drawer_->setColor(irr::video::SColor(0xffffffff));
    drawer_->flush();
    IGUIElement::draw();
}

} // namespace skyvane
