#include "gui/glyphs/DimensionFinderCallback.h"

#include <algorithm>

namespace skyvane {

void DimensionFinderCallback::OnCharacter(const FontCharacter& character, int, int x, int y) {
    width_ = std::max(width_, x - character.xoffset + character.xadvance);
    lastLine_ = std::max(lastLine_, y - character.yoffset);
}

void DimensionFinderCallback::OnLineFinished(int width) {
    width_ = std::max(width_, width);
}

} // namespace skyvane
