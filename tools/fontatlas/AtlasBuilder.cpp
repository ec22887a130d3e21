#include "fontatlas/AtlasBuilder.h"

#include "fontatlas/ShelfPacker.h"
#include <algorithm>

namespace skyvane {

namespace {

constexpr int gapBetweenGlyphs = 2;

struct PendingGlyph {
    FontCharacter character;
    GrayImage field;
};

/// The character itself, its substitute, or 0.
wchar_t sourceOf(wchar_t character, const FontFiles& files, const CharacterList& list) {
    if (files.has(character))
        return character;
    const auto substitute = list.substitutes.find(character);
    return substitute != list.substitutes.end() && files.has(substitute->second) ? substitute->second : 0;
}

PendingGlyph makeGlyph(const AtlasOptions& options, const FontFiles& files, int base, wchar_t character,
                       wchar_t source) {
    const LargeGlyph large = files.draw(source);
    PendingGlyph glyph;
    glyph.character.id = static_cast<int>(character);
    glyph.character.xadvance = large.advance;
    if (large.shape.pixels.empty())
        return glyph;
    glyph.field = makeDistanceField(large.shape, options.oversampling, options.spread);
    glyph.character.width = glyph.field.width;
    glyph.character.height = glyph.field.height;
    glyph.character.xoffset = large.left;
    glyph.character.yoffset = base - large.top;
    return glyph;
}

void copyInto(GrayImage& page, const GrayImage& glyph, int left, int top) {
    for (int y = 0; y < glyph.height; ++y)
        for (int x = 0; x < glyph.width; ++x)
            page.at(left + x, top + y) = glyph.at(x, y);
}

void pack(const AtlasOptions& options, std::vector<PendingGlyph>& glyphs, Atlas& atlas) {
    std::stable_sort(glyphs.begin(), glyphs.end(), [](const PendingGlyph& a, const PendingGlyph& b) {
        return a.character.height > b.character.height;
    });
    ShelfPacker packer(options.pageWidth, options.pageHeight, gapBetweenGlyphs);
    for (PendingGlyph& glyph : glyphs) {
        const auto corner = packer.place(glyph.character.width, glyph.character.height);
        if (!corner) {
            atlas.full = true;
            return;
        }
        glyph.character.x = corner->X;
        glyph.character.y = corner->Y;
        copyInto(atlas.page, glyph.field, corner->X, corner->Y);
        atlas.font.characters[static_cast<wchar_t>(glyph.character.id)] = glyph.character;
    }
}

/// Cuts off what lies below the lowest glyph.
void trim(Atlas& atlas) {
    int lowest = 0;
    for (const auto& entry : atlas.font.characters)
        lowest = std::max(lowest, entry.second.y + entry.second.height);
    atlas.page.height = std::min(atlas.page.height, lowest + gapBetweenGlyphs);
    atlas.page.pixels.resize(static_cast<size_t>(atlas.page.width) * atlas.page.height);
}

} // namespace

Atlas buildAtlas(const AtlasOptions& options, const FontFiles& files, const CharacterList& list) {
    Atlas atlas;
    const LineMeasures line = files.getLineMeasures();
    atlas.font.size = options.emPixels;
    atlas.font.lineHeight = line.height;
    atlas.font.base = line.base;
    atlas.page = {options.pageWidth, options.pageHeight, {}};
    atlas.page.pixels.resize(static_cast<size_t>(options.pageWidth) * options.pageHeight);

    std::vector<PendingGlyph> glyphs;
    for (const wchar_t character : list.characters) {
        const wchar_t source = sourceOf(character, files, list);
        if (source)
            glyphs.push_back(makeGlyph(options, files, line.base, character, source));
        else
            atlas.missing.push_back(character);
    }
    pack(options, glyphs, atlas);
    trim(atlas);
    files.collectKernings(list.characters, atlas.font.kernings);
    return atlas;
}

} // namespace skyvane
