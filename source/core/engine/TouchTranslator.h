#pragma once

#include <array>
#include <cstddef>
#include <irrlicht.h>

namespace skyvane {

/// A touch as the window system tells it.
struct RawTouch {
    enum Kind { Begin, Update, End };
    Kind kind;
    unsigned id;
    int x;
    int y;
    bool emulatesPointer; ///< this finger moves the pointer where nobody listens to touches
};

/// Makes the program's events of the window system's touches: a touch event each, and mouse events of the finger that
/// stands for the pointer, since the server sends none for touches that somebody listens to.
class TouchTranslator {
public:
    struct Events {
        std::array<irr::SEvent, 3> list;
        std::size_t count = 0;
    };

    /// The events in the order in which they are to be posted.
    Events translate(const RawTouch& raw);

private:
    bool remember(const RawTouch& raw);
    static void addMouse(Events& events, const RawTouch& raw);

    static constexpr int MaxFingers = 32;
    std::array<unsigned, MaxFingers> down_{}; ///< ids of the fingers on the glass
    int count_ = 0;
};

} // namespace skyvane
