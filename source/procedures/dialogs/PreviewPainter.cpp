#include "procedures/dialogs/PreviewPainter.h"

#include "chart/store/IChartElementSource.h"
#include "core/Context.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/mapmath/elements/AirportSketchPlan.h"
#include "procedures/dialogs/ElementSketch.h"
#include "procedures/framework/FlightReadings.h"

#include <cmath>

namespace skyvane {
namespace {

using Point = PreviewFrame::Point;
using irr::video::SColor;

// Those of the highway in the sky.
const SColor properColor(0xffff50ff), transitionColor(0xff46d1ff);
const SColor outsideColor(0x64ffffff), frameColor(0xff000000), fixColor(0xfff6f8fb);
const SColor grassColor(SketchGrass);
constexpr int sketchEdge = 2; ///< What frames a sketch isn't wanted within a picture.
constexpr int courseWidth = 3, fixSide = 11;
constexpr double arrowPixels = 9.0, arrowSpread = 150.0, degreesToRadians = 0.017453292519943295;
const Drawer2D::PointF middle(0.5f, 0.5f), beforeThreshold(0.5f, -0.2f);

int symbolSide(const PreviewPainter::Rect& rect, double share) {
    return static_cast<int>(static_cast<int>(std::sqrt(std::max(0, rect.getWidth() * rect.getHeight()))) * share);
}

PreviewPainter::Rect squareAround(Point place, int side) {
    return {place.X - side / 2, place.Y - side / 2, place.X - side / 2 + side, place.Y - side / 2 + side};
}

} // namespace

void PreviewPainter::load() {
    if (loaded_)
        return;
    loaded_ = true;
    aircraft_ = loadPanelImage(&context_, "media/plane.png");
    arrow_ = loadPanelImage(&context_, "media/runArrow.png");
    line_ = loadPanelImage(&context_, "media/white.png");
}

void PreviewPainter::drawElement(int id, const Rect& rect) {
    IChartElementSource* charts = context_.getCharts();
    IChartElement* element = charts ? charts->getChartElement(id) : nullptr;
    if (!element)
        return;
    context_.getDrawer()->drawFilledRect(rect, grassColor);
    drawElementSketch(context_, element, sketchRect(rect));
    context_.getDrawer()->resetViewPort();
    context_.getDrawer()->drawOutline(sketchRect(rect), grassColor, sketchEdge);
}

void PreviewPainter::drawAircraft(const PreviewFrame& frame, double share) {
    load();
    const FlightReadings readings = readFlight(*context_.getSensorManager());
    if (!readings.position)
        return;
    const int side = symbolSide(frame.getPicture(), share);
    const AircraftMark mark = placeAircraft(frame, *readings.position, side);
    Drawer2D* drawer = context_.getDrawer();
    if (mark.isOutside) {
        drawer->drawFilledRect(squareAround(mark.place, side), outsideColor);
        drawer->drawOutline(squareAround(mark.place, side), frameColor);
    }
    drawer->Draw(aircraft_.get(), mark.place, {side, side}, static_cast<float>(-readings.heading.value_or(0.0)),
                 middle);
}

void PreviewPainter::drawArrow(const RunwayArrow& arrow, const Rect& rect) {
    load();
    const int side = symbolSide(rect, LargeShare);
    context_.getDrawer()->Draw(arrow_.get(), arrow.threshold, {side, side}, static_cast<float>(-arrow.courseDegrees),
                               beforeThreshold);
}

void PreviewPainter::drawLine(Point from, Point to, int width, SColor color) {
    load();
    Drawer2D* drawer = context_.getDrawer();
    drawer->setColor(color);
    drawer->DrawLine(line_.get(), from, to, width);
    drawer->setColor(SColor(0xffffffff));
}

void PreviewPainter::drawCourse(const CoursePicture& course) {
    for (const CoursePicture::Line& line : course.lines)
        drawLine(line.from, line.to, courseWidth, line.transition ? transitionColor : properColor);
    for (const CoursePicture::Arrow& arrow : course.arrows)
        for (const double spread : {-arrowSpread, arrowSpread}) {
            const double direction = (arrow.courseDegrees + spread) * degreesToRadians;
            const Point end(arrow.place.X + static_cast<int>(std::lround(arrowPixels * std::sin(direction))),
                            arrow.place.Y - static_cast<int>(std::lround(arrowPixels * std::cos(direction))));
            drawLine(arrow.place, end, courseWidth, arrow.transition ? transitionColor : properColor);
        }
}

void PreviewPainter::drawFix(Point place) {
    Drawer2D* drawer = context_.getDrawer();
    drawer->drawFilledRect(squareAround(place, fixSide), frameColor);
    drawer->drawFilledRect(squareAround(place, fixSide - 2), fixColor);
}

} // namespace skyvane
