#pragma once

#include "core/engine/TouchTranslator.h"

#include <memory>
#include <string>

struct _XDisplay;

namespace skyvane {

/// A second connection to the X server that listens to the touches of a window (XInput 2.2).
class XTouchConnection {
public:
    /// Null, with the reason, where there is no server, no extension, or somebody else listens already.
    static std::unique_ptr<XTouchConnection> open(unsigned long window, std::string& trouble);
    ~XTouchConnection();
    XTouchConnection(const XTouchConnection&) = delete;
    XTouchConnection& operator=(const XTouchConnection&) = delete;

    /// The next touch that has arrived; false when there is none. Never waits.
    bool poll(RawTouch& touch);

private:
    XTouchConnection(_XDisplay* display, int opcode) : display_(display), opcode_(opcode) {}

    _XDisplay* display_;
    int opcode_;
};

} // namespace skyvane
