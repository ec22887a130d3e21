#pragma once

#include "core/engine/TouchInput.h"
#include "core/system/FrameStats.h"
#include "core/system/MemoryWatch.h"

#include <irrlicht.h>

namespace skyvane {

class Context;

/// The order of work in a frame: sensors, then the user's events, the pacer, and the drawing. A loop that waits for an
/// answer of the user repeats runFrame() as the main loop does. Main thread only; nothing is allocated in a frame.
class FrameLoop {
public:
    /// The context outlives the loop.
    explicit FrameLoop(Context& context);

    /// Frames until the window is closed or the program shall exit.
    void run();
    /// One whole frame; false when there was none, since the window is closed or the program shall exit.
    bool runFrame();

private:
    void pumpOwnEvents();
    void dispatchEvents();
    void draw();
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
