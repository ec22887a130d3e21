#pragma once

#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "core/system/FramePacer.h"

#include <irrlicht.h>

namespace skyvane {

/// Frames for a dialog of the start, before there are panels and sensors: events, pacer and the GUI on black. Receives
/// the device's events while it lives. Main thread only.
class StartFrames : public IFrameRunner {
public:
    /// The host and its device outlive it.
    explicit StartFrames(IEventHost& host);
    ~StartFrames() override;
    StartFrames(const StartFrames&) = delete;
    StartFrames& operator=(const StartFrames&) = delete;

    bool runFrame(const ModalFrame* modal) override;
    EventReceiver* getEvents() override { return &events_; }

private:
    irr::IrrlichtDevice* device_;
    EventReceiver events_;
    FramePacer pacer_;
};

} // namespace skyvane
