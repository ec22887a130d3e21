#pragma once

#include "core/engine/TouchTranslator.h"

#include <irrlicht.h>
#include <memory>

namespace skyvane {

class XTouchConnection;

/// Touches of the engine's window, which the engine itself discards: posted to the device once a frame.
///
/// Silent, with a line in the log, where the server has no multi-touch input extension. Main thread only.
class TouchInput {
public:
    /// The device outlives this object.
    explicit TouchInput(irr::IrrlichtDevice* device);
    ~TouchInput();
    TouchInput(const TouchInput&) = delete;
    TouchInput& operator=(const TouchInput&) = delete;

    /// Posts what has come in since the last call. Nothing is allocated.
    void pump();

private:
    irr::IrrlichtDevice* device_;
    std::unique_ptr<XTouchConnection> connection_;
    TouchTranslator translator_;
};

} // namespace skyvane
