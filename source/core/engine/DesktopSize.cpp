#include "core/engine/DesktopSize.h"

#include "core/engine/EngineRef.h"

#include <irrlicht.h>

#include <X11/Xlib.h>

namespace skyvane {
namespace {

irr::core::dimension2d<unsigned> readFromEngine() {
    const auto device = EngineRef<irr::IrrlichtDevice>::adopt(
        irr::createDevice(irr::video::EDT_NULL, irr::core::dimension2d<irr::u32>(640, 480), 32, false, true));
    if (!device)
        return {};
    irr::video::IVideoModeList* modes = device->getVideoModeList();
    return modes ? modes->getDesktopResolution() : irr::core::dimension2d<irr::u32>();
}

irr::core::dimension2d<unsigned> readFromServer() {
    Display* display = XOpenDisplay(nullptr);
    if (!display)
        return {};
    const int screen = DefaultScreen(display);
    const irr::core::dimension2d<unsigned> size(static_cast<unsigned>(DisplayWidth(display, screen)),
                                                static_cast<unsigned>(DisplayHeight(display, screen)));
    XCloseDisplay(display);
    return size;
}

} // namespace

bool isDisplayAvailable() {
    Display* display = XOpenDisplay(nullptr);
    if (display)
        XCloseDisplay(display);
    return display != nullptr;
}

irr::core::dimension2d<unsigned> readDesktopSize() {
    const irr::core::dimension2d<unsigned> size = readFromEngine();
    return size.Width > 0 && size.Height > 0 ? size : readFromServer();
}

} // namespace skyvane
