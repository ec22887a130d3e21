#pragma once

#include "core/geometry/EngineMath.h"
#include "gui/hypertext/elements/Style.h"

#include <string>
#include <vector>

namespace skyvane {

/// A text in lines, cut into pieces that are drawn one by one: a long text costs what is seen of it.
struct BrokenText {
    struct Piece {
        std::wstring text; ///< Lines with line feeds between them.
        int top = 0;       ///< Pixels below the first line.
        int bottom = 0;
    };
    std::vector<Piece> pieces;
    int width = 0; ///< Pixels of the widest line.
    int height = 0;
};

/// Word wrap of a document: a line that becomes wider than `width` pixels breaks at its last blank or tab, which goes.
/// A word that is too wide alone stays whole. Takes time in proportion to the text, whatever the text.
BrokenText breakLines(const std::wstring& text, int width, const Style& style);

} // namespace skyvane
