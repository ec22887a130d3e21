#include "core/ModalLoop.h"

#include "core/events/EventReceiver.h"

namespace skyvane {

ModalLoop::ModalLoop(IFrameRunner& frames, ModalFrame modal)
    : frames_(frames), outer_(frames.innermost_), modal_(std::move(modal)) {
    if (outer_ && outer_->modal_.backdrop == ModalFrame::Backdrop::Grey)
        modal_.backdrop = ModalFrame::Backdrop::Grey;
    frames_.innermost_ = this;
    dropEvents();
}

ModalLoop::~ModalLoop() {
    frames_.innermost_ = outer_;
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
