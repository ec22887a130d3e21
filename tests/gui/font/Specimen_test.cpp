#include "gui/font/FontFixture.h"
#include <gtest/gtest.h>

namespace skyvane {

namespace {

const wchar_t* const lines[] = {L"The quick brown fox jumps over the lazy dog 0123456789 AV To WA Ty 10.5° \u00ae ± µ",
                                L"ÄÖÜß éèêà ŁŐŘŽčşţ ΑΒΓΔΩ αβγδω ← ↑ → ↓ ↖ ↗ – − … × · Ω ≤ ≥ ≠ ≈ ∞ √ ▲ ▼ ▶ ◀ 12′ 30″"};

/// Both fonts at sizes from 8 to 80 pixels: for the eye, by SKYVANE_TEST_PICTURES.
void drawSpecimen(FlexibleFont& font, int& y) {
    const irr::video::SColor white(0xffffffff);
    for (const int size : {8, 10, 12, 16, 24, 40, 80}) {
        const float scale = static_cast<float>(size) / static_cast<float>(font.getFontDefintion().size);
        font.setDefaultScale({scale, scale});
        for (const wchar_t* line : lines) {
            font.draw(line, {10, y, 1910, y + 200}, white);
            y += static_cast<int>(font.getDimension(line).Height);
            if (size == 80)
                break;
        }
    }
}

} // namespace

TEST(FontSpecimen, drawsEverySizeOfBothFonts) {
    FontFixture fixture(1920, 1000);
    if (!fixture.gl)
        GTEST_SKIP() << "no display";
    FlexibleFont* ubuntu = fixture.load("ubuntu-regular.fnt");
    FlexibleFont* roboto = fixture.load("roboto-regular.fnt");
    ASSERT_TRUE(ubuntu && roboto);
    fixture.gl.begin(irr::video::SColor(0xff101418));
    int y = 4;
    drawSpecimen(*ubuntu, y);
    drawSpecimen(*roboto, y);
    fixture.gl.end();
    fixture.gl.savePicture("fonts.png");
}

} // namespace skyvane
