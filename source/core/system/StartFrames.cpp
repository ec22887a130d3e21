#include "core/system/StartFrames.h"

#include "core/events/IEventHost.h"

namespace skyvane {
namespace {

constexpr unsigned eventCapacity = 200;

} // namespace

StartFrames::StartFrames(IEventHost& host) : device_(host.getIrrlichtDevice()), events_(&host, eventCapacity) {
    device_->setEventReceiver(&events_);
}

StartFrames::~StartFrames() {
    device_->setEventReceiver(nullptr);
}

bool StartFrames::runFrame(const ModalFrame* modal) {
    if (!device_->run())
        return false;
    while (events_.isEventAvailable()) {
        const irr::SEvent event = events_.popEvent();
        if (modal && modal->onEvent)
            modal->onEvent(event);
    }
    pacer_.wait();
    irr::video::IVideoDriver* driver = device_->getVideoDriver();
    driver->beginScene(true, true, irr::video::SColor(0xff000000));
    device_->getGUIEnvironment()->drawAll();
    driver->endScene();
    return true;
}

} // namespace skyvane
