#include "core/FrameLoop.h"

#include "core/Context.h"
#include "core/engine/ApplicationEvents.h"
#include "core/events/EventReceiver.h"
#include "core/log/Logger.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "gui/skin/Skin.h"
#include "sensors/SensorManager.h"

#include <cwchar>

namespace skyvane {

FrameLoop::FrameLoop(Context& context)
    : context_(context), device_(context.getIrrlichtDevice()), driver_(device_->getVideoDriver()),
      background_(context.getSkin()->getColor("bg")), touch_(device_), stats_(FrameStats::fromEnvironment()) {}

void FrameLoop::run() {
    while (runFrame()) {
    }
    if (!stats_.write())
        logText("The frame statistics can't be written.\n");
}

bool FrameLoop::runFrame() {
    stats_.beginFrame();
    if (!device_->run() || context_.shallExit())
        return false;
    pumpOwnEvents();
    context_.getSensorManager()->Update();
    dispatchEvents();
    stats_.pauseFrame();
    context_.yieldWhileInactive();
    stats_.resumeFrame();
    draw();
    updateCaption();
    stats_.endFrame();
    if (stats_.isEnough())
        context_.setShallExit(true);
    return true;
}

/// What the engine's own pump leaves out.
void FrameLoop::pumpOwnEvents() {
    touch_.pump();
    if (memory_.poll(MilliSecs()))
        device_->postEventFromUser(packApplicationEvent(ApplicationEvent::MemoryWarning));
}

void FrameLoop::dispatchEvents() {
    EventReceiver* events = context_.getEvents();
    while (events->isEventAvailable())
        context_.getPanelManager()->processEvent(events->popEvent());
}

void FrameLoop::draw() {
    driver_->beginScene(true, true, background_);
    context_.getPanelManager()->Render();
    device_->getGUIEnvironment()->drawAll();
    context_.getPanelManager()->RenderAfterGUI();
    if (context_.getPanelManager()->isDrawFPS())
        drawFrameRate();
    context_.saveWantedScreenshot();
    driver_->endScene();
}

void FrameLoop::drawFrameRate() {
    irr::gui::IGUIFont* font = context_.getSkin()->getFont(irr::gui::EGDF_DEFAULT);
    if (!font)
        return;
    wchar_t text[32];
    std::swprintf(text, sizeof text / sizeof *text, L"%d FPS", static_cast<int>(lastFps_));
    const irr::core::rect<irr::s32> box(irr::core::position2di(0, 0), font->getDimension(text));
    driver_->draw2DRectangle(irr::video::SColor(0xff000000), box);
    font->draw(text, box, irr::video::SColor(0xffffffff), true, true);
}

void FrameLoop::updateCaption() {
    const irr::s32 fps = driver_->getFPS();
    if (fps == lastFps_)
        return;
    lastFps_ = fps;
    wchar_t caption[256];
    std::swprintf(caption, sizeof caption / sizeof *caption, L"Skyvane [%ls] FPS:%d", driver_->getName(),
                  static_cast<int>(fps));
    device_->setWindowCaption(caption);
}

} // namespace skyvane
