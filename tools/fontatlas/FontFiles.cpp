#include "fontatlas/FontFiles.h"

#include "fontatlas/PairKerning.h"
#include <cmath>

namespace skyvane {

namespace {

constexpr int outlineUnit = 64; ///< Outlines count in 64ths of a pixel.
constexpr int drawnEm = 1000;

int floorDivide(long value, long divisor) {
    return static_cast<int>(std::floor(static_cast<double>(value) / static_cast<double>(divisor)));
}

int ceilDivide(long value, long divisor) {
    return -floorDivide(-value, divisor);
}

} // namespace

FontFiles::FontFiles(const Options& options, std::map<wchar_t, DrawnGlyph> drawn)
    : options_(options), drawn_(std::move(drawn)) {
    FT_Library library = nullptr;
    if (FT_Init_FreeType(&library) == 0)
        library_.reset(library);
}

bool FontFiles::add(const std::string& path) {
    FT_Face face = nullptr;
    if (!library_ || FT_New_Face(library_.get(), path.c_str(), 0, &face) != 0)
        return false;
    faces_.emplace_back(face);
    const auto large = static_cast<FT_UInt>(options_.emPixels * options_.oversampling);
    return FT_IS_SCALABLE(face) && FT_Set_Pixel_Sizes(face, large, large) == 0;
}

FT_Face FontFiles::findFace(wchar_t character) const {
    for (const auto& face : faces_)
        if (FT_Get_Char_Index(face.get(), static_cast<FT_ULong>(character)) != 0)
            return face.get();
    return nullptr;
}

bool FontFiles::has(wchar_t character) const {
    return findFace(character) || drawn_.count(character) != 0;
}

LargeGlyph FontFiles::draw(wchar_t character) const {
    LargeGlyph glyph;
    FT_Face face = findFace(character);
    if (face && FT_Load_Char(face, static_cast<FT_ULong>(character), FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP) == 0) {
        const double advance = static_cast<double>(face->glyph->linearHoriAdvance) / 65536.0;
        glyph.advance = static_cast<int>(std::lround(advance / options_.oversampling));
        drawOutline(face->glyph->outline, glyph);
    } else if (const auto own = drawn_.find(character); own != drawn_.end()) {
        glyph.advance = static_cast<int>(std::lround(double(own->second.advance) * options_.emPixels / drawnEm));
        drawOwnGlyph(own->second, glyph);
    }
    return glyph;
}

void FontFiles::drawOutline(FT_Outline& outline, LargeGlyph& glyph) const {
    if (outline.n_points == 0)
        return;
    FT_BBox box;
    FT_Outline_Get_CBox(&outline, &box);
    const long pixel = static_cast<long>(outlineUnit) * options_.oversampling;
    const int margin = options_.margin;
    glyph.left = floorDivide(box.xMin, pixel) - margin;
    glyph.top = ceilDivide(box.yMax, pixel) + margin;
    const int bottom = floorDivide(box.yMin, pixel) - margin;
    glyph.shape.width = (ceilDivide(box.xMax, pixel) + margin - glyph.left) * options_.oversampling;
    glyph.shape.height = (glyph.top - bottom) * options_.oversampling;
    glyph.shape.pixels.assign(static_cast<size_t>(glyph.shape.width) * glyph.shape.height, 0);

    FT_Outline_Translate(&outline, -glyph.left * pixel, -bottom * pixel);
    FT_Bitmap bitmap{};
    bitmap.width = static_cast<unsigned>(glyph.shape.width);
    bitmap.rows = static_cast<unsigned>(glyph.shape.height);
    bitmap.pitch = glyph.shape.width;
    bitmap.buffer = glyph.shape.pixels.data();
    bitmap.num_grays = 256;
    bitmap.pixel_mode = FT_PIXEL_MODE_GRAY;
    FT_Outline_Get_Bitmap(library_.get(), &outline, &bitmap);
    for (uint8_t& value : glyph.shape.pixels)
        value = value >= 128 ? 1 : 0;
}

void FontFiles::drawOwnGlyph(const DrawnGlyph& source, LargeGlyph& glyph) const {
    const double unit = double(options_.emPixels) * options_.oversampling * outlineUnit / drawnEm;
    std::vector<FT_Vector> points;
    std::vector<short> ends;
    for (const auto& contour : source.contours) {
        for (const DrawnGlyph::Point& point : contour)
            points.push_back({std::lround(point.X * unit), std::lround(point.Y * unit)});
        ends.push_back(static_cast<short>(points.size() - 1));
    }
    std::vector<char> tags(points.size(), FT_CURVE_TAG_ON);
    FT_Outline outline{};
    outline.n_contours = static_cast<short>(ends.size());
    outline.n_points = static_cast<short>(points.size());
    outline.points = points.data();
    outline.tags = tags.data();
    outline.contours = ends.data();
    drawOutline(outline, glyph);
}

LineMeasures FontFiles::getLineMeasures() const {
    if (faces_.empty())
        return {};
    const FT_Face face = faces_.front().get();
    const double unit = double(options_.emPixels) / face->units_per_EM;
    return {static_cast<int>(std::lround(face->height * unit)), static_cast<int>(std::lround(face->ascender * unit))};
}

void FontFiles::collectKernings(const std::vector<wchar_t>& characters, std::map<std::wstring, int>& kernings) const {
    for (const auto& face : faces_) {
        std::vector<wchar_t> own;
        for (const wchar_t character : characters)
            if (findFace(character) == face.get())
                own.push_back(character);
        collectPairKernings(face.get(), options_.emPixels, own, kernings);
    }
}

} // namespace skyvane
