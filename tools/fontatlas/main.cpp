#include "fontatlas/AtlasBuilder.h"
#include "fontatlas/PngWriter.h"
#include "gui/glyphs/FntWriter.h"
#include <cstdio>
#include <fstream>
#include <iterator>

namespace {

using namespace skyvane;

constexpr const char* usage = "usage: fontatlas FACE CHARACTERS DRAWN OUTPUT FONT...\n"
                              "  FACE        the name to write into the font file\n"
                              "  CHARACTERS  list of characters (characters.txt)\n"
                              "  DRAWN       outlines for what the fonts lack (drawn.txt)\n"
                              "  OUTPUT      path without extension: OUTPUT.fnt and OUTPUT.png are written\n"
                              "  FONT        font files; a character comes from the first that has it\n";

bool readFile(const char* path, std::string& text) {
    std::ifstream file(path, std::ios::binary);
    text.assign(std::istreambuf_iterator<char>(file), {});
    if (!file.is_open())
        std::fprintf(stderr, "can't read %s\n", path);
    return file.is_open();
}

bool writeFile(const std::string& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (file.fail())
        std::fprintf(stderr, "can't write %s\n", path.c_str());
    return !file.fail();
}

bool write(const std::string& output, const std::string& face, const AtlasOptions& options, const Atlas& atlas) {
    FntPage page;
    page.face = face;
    page.file = output.substr(output.find_last_of('/') + 1) + ".png";
    page.size = {static_cast<irr::u32>(atlas.page.width), static_cast<irr::u32>(atlas.page.height)};
    page.spread = options.spread;
    return writeFile(output + ".fnt", writeFntText(atlas.font, page)) &&
           writeFile(output + ".png", makeWhitePng(atlas.page));
}

void report(const Atlas& atlas) {
    std::printf("%zu glyphs, %zu kerning pairs\n", atlas.font.characters.size(), atlas.font.kernings.size());
    for (const wchar_t character : atlas.missing)
        std::printf("missing: U+%04X\n", static_cast<unsigned>(character));
}

} // namespace

int main(int argc, char** argv) {
    std::string characters;
    std::string drawn;
    if (argc < 6 || !readFile(argv[2], characters) || !readFile(argv[3], drawn)) {
        std::fputs(usage, stderr);
        return 2;
    }
    const AtlasOptions options;
    FontFiles files({options.emPixels, options.oversampling, options.spread}, parseDrawnGlyphs(drawn));
    for (int i = 5; i < argc; ++i) {
        if (!files.add(argv[i])) {
            std::fprintf(stderr, "not a font: %s\n", argv[i]);
            return 1;
        }
    }
    const Atlas atlas = buildAtlas(options, files, CharacterList::parse(characters));
    report(atlas);
    if (atlas.full) {
        std::fputs("the page is too small\n", stderr);
        return 1;
    }
    return write(argv[4], argv[1], options, atlas) ? 0 : 1;
}
