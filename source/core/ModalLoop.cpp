#include "core/ModalLoop.h"

#include "core/events/EventReceiver.h"

namespace skyvane {

ModalLoop::ModalLoop(IFrameRunner& frames, ModalFrame modal) : frames_(frames), modal_(std::move(modal)) {
    dropEvents();
}

ModalLoop::~ModalLoop() {
    dropEvents();
}

void ModalLoop::dropEvents() {
    while (frames_.getEvents()->isEventAvailable())
        frames_.getEvents()->popEvent();
}

bool ModalLoop::run(const std::function<bool()>& isOpen) {
    while (isOpen())
        if (!step())
            return false;
    return true;
}

bool ModalLoop::step() {
    return frames_.runFrame(&modal_);
}

} // namespace skyvane
