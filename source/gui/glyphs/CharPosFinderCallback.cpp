#include "gui/glyphs/CharPosFinderCallback.h"

namespace skyvane {

void CharPosFinderCallback::OnCharacter(const FontCharacter& character, int index, int x, int) {
    if (found_ || static_cast<float>(x - character.xoffset) <= searchedX_)
        return;
    found_ = true;
    index_ = index - 1;
}

} // namespace skyvane
