#include "core/FrameLoop.h"

#include "core/Context.h"
#include "core/engine/ApplicationEvents.h"
#include "core/events/EventReceiver.h"
#include "core/log/Logger.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "gui/input/InputSystem.h"
#include "gui/skin/Skin.h"
#include "procedures/ProcedureManager.h"
#include "sensors/SensorManager.h"
#include "terrain/TerrainManager.h"

#include <cwchar>

namespace skyvane {
namespace {

const irr::video::SColor plainBackdrop(0xff808080);

} // namespace

FrameLoop::FrameLoop(Context& context)
    : context_(context), device_(context.getIrrlichtDevice()), driver_(device_->getVideoDriver()),
      background_(context.getSkin()->getColor("bg")), touch_(device_), stats_(FrameStats::fromEnvironment()) {
    context_.setFrames(this);
}

FrameLoop::~FrameLoop() {
    context_.setFrames(nullptr);
}

EventReceiver* FrameLoop::getEvents() {
    return context_.getEvents();
}

void FrameLoop::run() {
    do {
        if (TerrainManager* terrain = context_.getPanelManager()->getTerrainManager())
            terrain->dirtyCheck(false);
    } while (runFrame());
    if (!stats_.write())
        logText("The frame statistics can't be written.\n");
}

bool FrameLoop::runFrame(const ModalFrame* modal) {
    stats_.beginFrame();
    if (!device_->run() || context_.shallExit())
        return false;
    pumpOwnEvents();
    context_.getSensorManager()->Update();
    context_.getProcedureManager()->Update(false);
    dispatchEvents(modal);
    stats_.pauseFrame();
    context_.yieldWhileInactive();
    stats_.resumeFrame();
    draw(modal);
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

/// A message can be dismissed while a dialog is open.
void FrameLoop::dispatchEvents(const ModalFrame* modal) {
    EventReceiver* events = context_.getEvents();
    PanelManager* panels = context_.getPanelManager();
    while (events->isEventAvailable()) {
        const irr::SEvent event = events->popEvent();
        if (!modal)
            panels->processEvent(event);
        else if (!panels->processEventOverDialog(event) && modal->onEvent)
            modal->onEvent(event);
    }
}

void FrameLoop::draw(const ModalFrame* modal) {
    const bool isPlain = modal && modal->backdrop == ModalFrame::Backdrop::Grey;
    context_.getInputSystem()->update();
    driver_->beginScene(true, true, isPlain ? plainBackdrop : background_);
    if (!isPlain)
        context_.getPanelManager()->Render();
    device_->getGUIEnvironment()->drawAll();
    if (!isPlain)
        context_.getPanelManager()->renderInMenuPreview();
    context_.getPanelManager()->RenderAfterGUI();
    context_.getInputSystem()->render();
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
