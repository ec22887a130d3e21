#include "fontatlas/PairKerning.h"

#include <cmath>
#include <hb-ft.h>
#include <hb-ot.h>
#include <hb.h>
#include <memory>

namespace skyvane {

namespace {

constexpr int subPixels = 64;

struct Drop {
    void operator()(hb_font_t* font) const { hb_font_destroy(font); }
    void operator()(hb_face_t* face) const { hb_face_destroy(face); }
    void operator()(hb_buffer_t* buffer) const { hb_buffer_destroy(buffer); }
};

class PairShaper {
public:
    PairShaper(FT_Face face, int emPixels)
        : face_(hb_ft_face_create_referenced(face)), font_(hb_font_create(face_.get())), buffer_(hb_buffer_create()) {
        hb_ot_font_set_funcs(font_.get());
        hb_font_set_scale(font_.get(), emPixels * subPixels, emPixels * subPixels);
    }

    int kerningOf(wchar_t first, wchar_t second) {
        return static_cast<int>(std::lround(double(advance(first, second, 1) - advance(first, second, 0)) / subPixels));
    }

private:
    int advance(wchar_t first, wchar_t second, unsigned kern) {
        const uint32_t pair[] = {static_cast<uint32_t>(first), static_cast<uint32_t>(second)};
        hb_buffer_reset(buffer_.get());
        hb_buffer_add_utf32(buffer_.get(), pair, 2, 0, 2);
        hb_buffer_guess_segment_properties(buffer_.get());
        const hb_feature_t features[] = {feature("kern", kern), feature("liga", 0), feature("clig", 0)};
        hb_shape(font_.get(), buffer_.get(), features, 3);
        unsigned count = 0;
        const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer_.get(), &count);
        int sum = 0;
        for (unsigned i = 0; i < count; ++i)
            sum += positions[i].x_advance;
        return sum;
    }

    static hb_feature_t feature(const char* tag, unsigned value) {
        return {hb_tag_from_string(tag, -1), value, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END};
    }

    std::unique_ptr<hb_face_t, Drop> face_;
    std::unique_ptr<hb_font_t, Drop> font_;
    std::unique_ptr<hb_buffer_t, Drop> buffer_;
};

} // namespace

void collectPairKernings(FT_Face face, int emPixels, const std::vector<wchar_t>& characters,
                         std::map<std::wstring, int>& kernings) {
    PairShaper shaper(face, emPixels);
    for (const wchar_t first : characters)
        for (const wchar_t second : characters)
            if (const int amount = shaper.kerningOf(first, second))
                kernings[{first, second}] = amount;
}

} // namespace skyvane
