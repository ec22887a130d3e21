#include "gui/glyphs/FntText.h"
#include "gui/glyphs/TextMeasure.h"
#include <cstddef>
#include <cstdint>

/// Any bytes as a font file; what is accepted must be safe to measure with.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace skyvane;
    FntText text = parseFntText(reinterpret_cast<const char*>(data), size);
    if (!text.error.empty())
        return 0;
    text.definition.convertFontCoords2TexCoords({64, 64}, true);
    constexpr wchar_t sample[] = L"AV To\t1\n\tA\r\u00e9 ";
    measureText(sample, sizeof sample / sizeof *sample, 4, text.definition, {1.5f, 0.5f});
    findCharacterAt(sample, sizeof sample / sizeof *sample, 1000000, text.definition, 3.0f);
    return 0;
}
