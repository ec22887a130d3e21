#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <cairo.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

/// A picture of a part of the earth, north up, for people: lines, areas, symbols and labels that keep out of each
/// other's way. Sizes in pixels; colours 0xaarrggbb.
class MapPicture {
public:
    struct Box {
        double west;
        double south;
        double east; ///< Above west.
        double north;
    };
    struct Point {
        double x;
        double y;
    };
    struct LabelStyle {
        uint32_t colour = 0xff202020;
        double size = 12.0;
        bool isItalic = false;
        bool isCentred = false;
        bool isAlways = false; ///< Whatever stands there.
    };

    /// The height follows from the box.
    MapPicture(const Box& box, int width, uint32_t background);

    int getWidth() const;
    int getHeight() const;
    double getMetresPerPixel() const;
    Point place(const ChartPosition& position) const;
    /// Whether any of the points' bounding rectangle is in the picture.
    bool shows(const std::vector<ChartPosition>& points) const;

    void line(const std::vector<ChartPosition>& points, bool isClosed, uint32_t colour, double width,
              const std::vector<double>& dashes = {});
    void area(const std::vector<ChartPosition>& points, uint32_t colour);
    void polygon(const std::vector<Point>& points, uint32_t fill, uint32_t outline, double width);
    void circle(const Point& middle, double radius, uint32_t fill, uint32_t outline, double width);
    void rectangle(const Point& corner, double width, double height, uint32_t fill);
    /// Beside the place, or centred on it, at the first of four places that is free of other labels and in the picture;
    /// left out when there is none. Lines apart by line feeds.
    void label(const Point& point, const std::string& text, const LabelStyle& style);

    /// A PNG file. False when it can't be written.
    bool save(const std::string& path) const;

private:
    struct Rectangle {
        double left, top, right, bottom;
    };
    struct SurfaceDeleter {
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    };
    struct ContextDeleter {
        void operator()(cairo_t* context) const { cairo_destroy(context); }
    };

    void path(const std::vector<ChartPosition>& points);
    /// The first of them that is in the picture and free; null without one.
    const Rectangle* chooseFrame(const std::array<Rectangle, 4>& frames) const;
    /// The current font draws it.
    void drawText(const std::vector<std::string>& lines, const Rectangle& frame, const LabelStyle& style);
    void setColour(uint32_t colour);
    void fillAndOutline(uint32_t fill, uint32_t outline, double width);

    Box box_;
    double pixelsPerDegree_; ///< Of latitude.
    double eastScale_;
    std::unique_ptr<cairo_surface_t, SurfaceDeleter> surface_;
    std::unique_ptr<cairo_t, ContextDeleter> cairo_;
    std::vector<Rectangle> labels_;
};

} // namespace skyvane
