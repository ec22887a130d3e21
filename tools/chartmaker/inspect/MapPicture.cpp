#include "chartmaker/inspect/MapPicture.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr int highestPicture = 16000;
constexpr double lineFactor = 1.15; // of a text's lines, by its size

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines(1);
    for (const char c : text)
        if (c == '\n')
            lines.emplace_back();
        else
            lines.back() += c;
    return lines;
}

} // namespace

MapPicture::MapPicture(const Box& box, int width, uint32_t background)
    : box_(box), eastScale_(longitudeScale(0.5 * (box.south + box.north))) {
    pixelsPerDegree_ = width / ((box.east - box.west) * eastScale_);
    const double height = std::clamp((box.north - box.south) * pixelsPerDegree_, 1.0, double(highestPicture));
    pixelsPerDegree_ = std::min(pixelsPerDegree_, height / (box.north - box.south));
    surface_.reset(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, static_cast<int>(std::lround(height))));
    cairo_.reset(cairo_create(surface_.get()));
    cairo_set_line_join(cairo_.get(), CAIRO_LINE_JOIN_ROUND);
    cairo_set_line_cap(cairo_.get(), CAIRO_LINE_CAP_ROUND);
    setColour(background);
    cairo_paint(cairo_.get());
}

int MapPicture::getWidth() const {
    return cairo_image_surface_get_width(surface_.get());
}

int MapPicture::getHeight() const {
    return cairo_image_surface_get_height(surface_.get());
}

double MapPicture::getMetresPerPixel() const {
    return MetresPerDegree / pixelsPerDegree_;
}

// Longitudes are taken the way that is nearer to the box.
MapPicture::Point MapPicture::place(const ChartPosition& position) const {
    const double middle = 0.5 * (box_.west + box_.east);
    const double east = 0.5 * (box_.east - box_.west) + transformLongitude(position.longitude, middle);
    return {east * eastScale_ * pixelsPerDegree_, (box_.north - position.latitude) * pixelsPerDegree_};
}

bool MapPicture::shows(const std::vector<ChartPosition>& points) const {
    constexpr double margin = 30.0; // for symbols
    if (points.empty())
        return false;
    Rectangle bounds{1e18, 1e18, -1e18, -1e18};
    for (const ChartPosition& position : points) {
        const Point point = place(position);
        bounds = {std::min(bounds.left, point.x), std::min(bounds.top, point.y), std::max(bounds.right, point.x),
                  std::max(bounds.bottom, point.y)};
    }
    return bounds.right > -margin && bounds.left < getWidth() + margin && bounds.bottom > -margin &&
           bounds.top < getHeight() + margin;
}

void MapPicture::setColour(uint32_t colour) {
    const auto part = [colour](int shift) { return ((colour >> shift) & 255u) / 255.0; };
    cairo_set_source_rgba(cairo_.get(), part(16), part(8), part(0), part(24));
}

void MapPicture::path(const std::vector<ChartPosition>& points) {
    for (const ChartPosition& position : points) {
        const Point point = place(position);
        cairo_line_to(cairo_.get(), point.x, point.y);
    }
}

void MapPicture::line(const std::vector<ChartPosition>& points, bool isClosed, uint32_t colour, double width,
                      const std::vector<double>& dashes) {
    path(points);
    if (isClosed)
        cairo_close_path(cairo_.get());
    setColour(colour);
    cairo_set_line_width(cairo_.get(), width);
    cairo_set_dash(cairo_.get(), dashes.data(), static_cast<int>(dashes.size()), 0.0);
    cairo_stroke(cairo_.get());
    cairo_set_dash(cairo_.get(), nullptr, 0, 0.0);
}

void MapPicture::area(const std::vector<ChartPosition>& points, uint32_t colour) {
    path(points);
    setColour(colour);
    cairo_fill(cairo_.get());
}

void MapPicture::fillAndOutline(uint32_t fill, uint32_t outline, double width) {
    setColour(fill);
    cairo_fill_preserve(cairo_.get());
    setColour(outline);
    cairo_set_line_width(cairo_.get(), width);
    cairo_stroke(cairo_.get());
}

void MapPicture::polygon(const std::vector<Point>& points, uint32_t fill, uint32_t outline, double width) {
    for (const Point& point : points)
        cairo_line_to(cairo_.get(), point.x, point.y);
    cairo_close_path(cairo_.get());
    fillAndOutline(fill, outline, width);
}

void MapPicture::circle(const Point& middle, double radius, uint32_t fill, uint32_t outline, double width) {
    cairo_new_sub_path(cairo_.get());
    cairo_arc(cairo_.get(), middle.x, middle.y, radius, 0.0, 6.283185307179586);
    fillAndOutline(fill, outline, width);
}

void MapPicture::rectangle(const Point& corner, double width, double height, uint32_t fill) {
    cairo_rectangle(cairo_.get(), corner.x, corner.y, width, height);
    setColour(fill);
    cairo_fill(cairo_.get());
}

const MapPicture::Rectangle* MapPicture::chooseFrame(const std::array<Rectangle, 4>& frames) const {
    const auto isFree = [&](const Rectangle& frame) {
        const auto overlaps = [&](const Rectangle& other) {
            return frame.left < other.right && other.left < frame.right && frame.top < other.bottom &&
                   other.top < frame.bottom;
        };
        return frame.left > 0.0 && frame.top > 0.0 && frame.right < getWidth() && frame.bottom < getHeight() &&
               std::none_of(labels_.begin(), labels_.end(), overlaps);
    };
    const auto* found = std::find_if(frames.begin(), frames.end(), isFree);
    return found == frames.end() ? nullptr : found;
}

void MapPicture::label(const Point& point, const std::string& text, const LabelStyle& style) {
    constexpr double gap = 8.0;
    cairo_t* const cairo = cairo_.get();
    cairo_select_font_face(cairo, "Roboto", style.isItalic ? CAIRO_FONT_SLANT_ITALIC : CAIRO_FONT_SLANT_NORMAL,
                           CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cairo, style.size);
    const std::vector<std::string> lines = linesOf(text);
    double width = 0.0;
    for (const std::string& line : lines) {
        cairo_text_extents_t extents;
        cairo_text_extents(cairo, line.c_str(), &extents);
        width = std::max(width, extents.x_advance);
    }
    const double height = static_cast<double>(lines.size()) * style.size * lineFactor;
    const auto frameAt = [&](double left, double middle) {
        return Rectangle{left, middle - 0.5 * height, left + width, middle + 0.5 * height};
    };
    const double right = point.x + gap, left = point.x - gap - width, centred = point.x - 0.5 * width;
    const double away = style.isCentred ? 2.0 * gap : 0.5 * height + gap;
    const std::array<Rectangle, 4> frames{frameAt(style.isCentred ? centred : right, point.y),
                                          frameAt(centred, point.y + away), frameAt(centred, point.y - away),
                                          frameAt(style.isCentred ? right : left, point.y)};
    const Rectangle* frame = style.isAlways ? &frames.front() : chooseFrame(frames);
    if (text.empty() || !frame)
        return;
    labels_.push_back(*frame);
    drawText(lines, *frame, style);
}

void MapPicture::drawText(const std::vector<std::string>& lines, const Rectangle& frame, const LabelStyle& style) {
    constexpr double halo = 3.0, ascent = 0.95;
    for (size_t i = 0; i < lines.size(); ++i) {
        cairo_move_to(cairo_.get(), frame.left,
                      frame.top + style.size * (ascent + lineFactor * static_cast<double>(i)));
        cairo_text_path(cairo_.get(), lines[i].c_str());
    }
    setColour(0xc0ffffff);
    cairo_set_line_width(cairo_.get(), halo);
    cairo_stroke_preserve(cairo_.get());
    setColour(style.colour);
    cairo_fill(cairo_.get());
}

bool MapPicture::save(const std::string& path) const {
    return cairo_surface_write_to_png(surface_.get(), path.c_str()) == CAIRO_STATUS_SUCCESS;
}

} // namespace skyvane
