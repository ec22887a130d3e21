#pragma once

#include "gui/hypertext/elements/IDocElement.h"

#include <vector>

namespace skyvane {

/// A run of text, wrapped to the width. Its pieces become meshes when they are first seen after a layout.
class TextElement : public IDocElement {
public:
    /// UTF-8; each malformed sequence shows as "?".
    explicit TextElement(const std::string& bytes);

    std::string Print(int indent) const override;
    Rect calcRelativeViewPort(IDocCanvas& canvas, const Style& style, int width) override;
    void render(const Rect& parent, DocPass& pass) override;
    std::string toHTML() const override;

private:
    struct Piece {
        std::wstring text;
        int top;
        int bottom;
        std::unique_ptr<IDocText> mesh; ///< Null until it is seen.
    };

    void drawBackground(const Rect& place, DocPass& pass) const;

    std::wstring text_;
    Style style_;
    std::vector<Piece> pieces_;
};

} // namespace skyvane
