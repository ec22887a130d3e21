#include "gui/keys/KeyPress.h"

#include <utility>

namespace skyvane {

bool KeyPress::process(Kind kind, bool inside, bool isDown) {
    if (!inside) {
        pressedOutside_ = isDown;
        return std::exchange(pressed_, false);
    }
    if (kind == Kind::Move)
        return false;
    pressed_ = kind == Kind::Press;
    if (!pressed_)
        pressedOutside_ = false;
    return true;
}

} // namespace skyvane
