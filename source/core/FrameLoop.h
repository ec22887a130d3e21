#pragma once

#include "core/ModalLoop.h"
#include "core/engine/TouchInput.h"
#include "core/system/FrameStats.h"
#include "core/system/MemoryWatch.h"

#include <irrlicht.h>

namespace skyvane {

class Context;

/// The order of work in a frame: sensors, then the user's events, the pacer, and the drawing. A dialog that waits
/// for its answer runs frames through a ModalLoop. Main thread only; nothing is allocated in a frame.
class FrameLoop : public IFrameRunner {
public:
    /// The context outlives the loop, and knows it as its frames while it lives.
    explicit FrameLoop(Context& context);
    ~FrameLoop() override;

    /// Frames until the window is closed or the program shall exit.
    void run();
    bool runFrame(const ModalFrame* modal = nullptr) override;
    EventReceiver* getEvents() override;

private:
    void pumpOwnEvents();
    void dispatchEvents(const ModalFrame* modal);
    void draw(const ModalFrame* modal);
    void drawFrameRate();
    void updateCaption();

    Context& context_;
    irr::IrrlichtDevice* device_;
    irr::video::IVideoDriver* driver_;
    irr::video::SColor background_;
    TouchInput touch_;
    MemoryWatch memory_;
    FrameStats stats_;
    irr::s32 lastFps_ = -1;
};

} // namespace skyvane
