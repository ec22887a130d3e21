#pragma once

#include <irrlicht.h>

namespace skyvane {

/// What the event receiver needs of the program around it. `Context` is one; tests bring their own.
class IEventHost {
public:
    virtual ~IEventHost() = default;
    /// Null without a window: keys and joysticks are noted then, but no GUI is asked.
    virtual irr::IrrlichtDevice* getIrrlichtDevice() = 0;
    /// A picture of the next frame is wanted.
    virtual void OnScreenshotKey() = 0;
    virtual void OnMustFreeMemory() = 0;
};

} // namespace skyvane
