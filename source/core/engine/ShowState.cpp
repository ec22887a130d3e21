#include "core/engine/ShowState.h"

namespace skyvane {

void drawStateScreen(irr::IrrlichtDevice* device, const wchar_t* text) {
    irr::video::IVideoDriver* driver = device->getVideoDriver();
    irr::gui::IGUIFont* font = device->getGUIEnvironment()->getSkin()->getFont();
    driver->beginScene(true, true, irr::video::SColor(255, 0, 0, 0));
    if (font)
        font->draw(text, driver->getViewPort(), irr::video::SColor(255, 255, 255, 255), true, true);
    driver->endScene();
}

void showState(irr::IrrlichtDevice* device, const wchar_t* text) {
    if (device->run())
        drawStateScreen(device, text);
}

} // namespace skyvane
