#include "displays/visionmath/bars/BarPen.h"

namespace skyvane {
namespace {

/// From one face of a drum to the next, in heights of a digit.
constexpr double faceSpacing = 1.45;

/// What one colour over another comes to, so that a large area is filled once.
uint32_t layColor(uint32_t above, uint32_t below) {
    const double a = (above >> 24) / 255.0, b = (below >> 24) / 255.0 * (1.0 - a), all = a + b;
    auto mixed = static_cast<uint32_t>(all * 255.0 + 0.5) << 24;
    for (int shift = 0; all > 0.0 && shift < 24; shift += 8) {
        const double channel = a * ((above >> shift) & 0xff) + b * ((below >> shift) & 0xff);
        mixed |= static_cast<uint32_t>(channel / all + 0.5) << shift;
    }
    return mixed;
}

bool isEmpty(const ShapeRect& rect) {
    return !(rect.getWidth() > 0.0) || !(rect.getHeight() > 0.0);
}

} // namespace

void BarPen::rect(BarCanvas::Level level, const ShapeRect& place, uint32_t argb) {
    if (isEmpty(place))
        return;
    const ShapePoint& a = place.UpperLeftCorner;
    const ShapePoint& b = place.LowerRightCorner;
    polygon(level, {a, {b.X, a.Y}, b, {a.X, b.Y}}, argb);
}

void BarPen::frame(BarCanvas::Level level, const ShapeRect& place, double width, uint32_t argb) {
    const ShapePoint a = place.UpperLeftCorner, b = place.LowerRightCorner;
    rect(level, {a.X, a.Y, b.X, a.Y + width}, argb);
    rect(level, {a.X, b.Y - width, b.X, b.Y}, argb);
    rect(level, {a.X, a.Y + width, a.X + width, b.Y - width}, argb);
    rect(level, {b.X - width, a.Y + width, b.X, b.Y - width}, argb);
}

void BarPen::shade(BarCanvas::Level level, const ShapeRect& place, uint32_t top, uint32_t bottom) {
    if (isEmpty(place))
        return;
    ShapeMesh& mesh = canvas_.layers[level].shapes;
    const auto corner = [&](double x, double y, uint32_t argb) {
        return mesh.add({static_cast<float>(x), static_cast<float>(y)}, argb);
    };
    const ShapePoint a = place.UpperLeftCorner, b = place.LowerRightCorner;
    const uint32_t first = corner(a.X, a.Y, top);
    corner(b.X, a.Y, top);
    corner(b.X, b.Y, bottom);
    corner(a.X, b.Y, bottom);
    mesh.quad(first, first + 1, first + 2, first + 3);
}

void BarPen::polygon(BarCanvas::Level level, std::initializer_list<ShapePoint> corners, uint32_t argb) {
    path_.assign(corners);
    addConvex(canvas_.layers[level].shapes, path_, argb);
}

void BarPen::picture(BarPicture::Kind kind, const ShapeRect& place, uint32_t argb, bool isMirrored,
                     BarCanvas::Level level) {
    canvas_.layers[level].pictures.push_back({kind, place, argb, isMirrored});
}

void BarPen::band(const ShapeRect& place, uint32_t argb) {
    picture(BarPicture::Band, place, layColor(BarColor::shade, argb), false, BarCanvas::Ground);
}

void BarPen::label(const ShapeRect& place, const ShortText& words, double height, uint32_t argb) {
    pane(BarCanvas::Ground, BarPane::Title, place);
    BarText text;
    text.text = words;
    text.place = ShapePoint(middleX(place), middleY(place));
    text.height = height;
    text.argb = argb;
    text.most = place.getWidth() - 0.6 * height;
    this->text(BarCanvas::Scale, text);
}

void BarPen::counter(const RollingDigits& digits, const ShapeRect& window, double right, double height, uint32_t argb) {
    const double pitch = digitWidth * height;
    BarText text;
    text.height = height;
    text.argb = argb;
    text.clip = window;
    double left = right - digits.getWidth() * pitch;
    bool signPlaced = !digits.isNegative();
    const auto line = middleY(window);
    for (const auto& column : digits) {
        const double width = column.digits * pitch;
        if (!signPlaced && column.count > 0) {
            signPlaced = true;
            text.text = L"-";
            text.place = ShapePoint(left - 0.4 * pitch, line);
            this->text(BarCanvas::Box, text);
        }
        for (const auto& face : column) {
            text.text = face.text;
            text.place = ShapePoint(left + 0.5 * width, line - face.offset * faceSpacing * height);
            this->text(BarCanvas::Box, text);
        }
        left += width;
    }
    const double rim = 0.3 * window.getHeight(), top = window.UpperLeftCorner.Y, bottom = window.LowerRightCorner.Y;
    const double start = left - digits.getWidth() * pitch;
    shade(BarCanvas::Glass, {start, top, left, top + rim}, BarColor::box, withAlpha(BarColor::box, 0.0));
    shade(BarCanvas::Glass, {start, bottom - rim, left, bottom}, withAlpha(BarColor::box, 0.0), BarColor::box);
}

} // namespace skyvane
