#pragma once

#include "fontatlas/DistanceField.h"
#include "fontatlas/DrawnGlyphs.h"
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

/// A glyph drawn large, with its place in pixels of the atlas.
struct LargeGlyph {
    GrayImage shape; ///< Oversampled; empty for a glyph without ink.
    int left = 0;    ///< From the pen to the shape's left edge.
    int top = 0;     ///< From the base line up to the shape's top edge.
    int advance = 0;
};

struct LineMeasures {
    int height = 0;
    int base = 0; ///< From the top of the line to the base line.
};

/// The font files that one atlas is made from. A character comes from the first file that has it, then from the drawn
/// glyphs. No hinting: the field is scaled freely.
class FontFiles {
public:
    struct Options {
        int emPixels = 0;
        int oversampling = 0;
        int margin = 0; ///< Pixels of the atlas to leave free round a glyph's ink.
    };

    FontFiles(const Options& options, std::map<wchar_t, DrawnGlyph> drawn);

    /// False when the file can't be read as a scalable font.
    bool add(const std::string& path);

    bool has(wchar_t character) const;
    LargeGlyph draw(wchar_t character) const;
    /// Those of the first file.
    LineMeasures getLineMeasures() const;
    /// Adds the kerning of all pairs of these characters, where one file has both.
    void collectKernings(const std::vector<wchar_t>& characters, std::map<std::wstring, int>& kernings) const;

private:
    struct DropLibrary {
        void operator()(FT_Library library) const { FT_Done_FreeType(library); }
    };
    struct DropFace {
        void operator()(FT_Face face) const { FT_Done_Face(face); }
    };

    FT_Face findFace(wchar_t character) const;
    void drawOutline(FT_Outline& outline, LargeGlyph& glyph) const;
    void drawOwnGlyph(const DrawnGlyph& source, LargeGlyph& glyph) const;

    Options options_;
    std::map<wchar_t, DrawnGlyph> drawn_;
    std::unique_ptr<FT_LibraryRec_, DropLibrary> library_;
    std::vector<std::unique_ptr<FT_FaceRec_, DropFace>> faces_;
};

} // namespace skyvane
