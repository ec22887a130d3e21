#include "core/engine/TouchInput.h"

#include "core/engine/XTouchConnection.h"
#include "core/log/Logger.h"

namespace skyvane {

TouchInput::TouchInput(irr::IrrlichtDevice* device) : device_(device) {
    if (device->getVideoDriver()->getDriverType() != irr::video::EDT_OPENGL)
        return;
    const unsigned long window = device->getVideoDriver()->getExposedVideoData().OpenGLLinux.X11Window;
    std::string trouble;
    connection_ = XTouchConnection::open(window, trouble);
    if (!connection_)
        logText("No touch input: " + trouble + "\n");
}

TouchInput::~TouchInput() = default;

void TouchInput::pump() {
    RawTouch raw{};
    while (connection_ && connection_->poll(raw)) {
        const TouchTranslator::Events events = translator_.translate(raw);
        for (std::size_t i = 0; i < events.count; ++i)
            device_->postEventFromUser(events.list[i]);
    }
}

} // namespace skyvane
