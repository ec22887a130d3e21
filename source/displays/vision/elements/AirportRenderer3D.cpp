// How airports look in a synthetic view: their runways lie on the ground as it is drawn.
#include "chart/elements/AirportElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/Context.h"
#include "displays/map/elements/AirportRenderer.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/mapmath/elements/RunwayShapes.h"
#include "displays/vision/Map3D.h"
#include "displays/visionmath/VisionFilter.h"
#include "procedures/ProcedureManager.h"

#include <algorithm>

namespace skyvane {
namespace {

using Place = SceneShapes::Place;

constexpr int labelImportance = 3, targetImportance = 9;
constexpr double lift = 0.5;
constexpr double leastWidth = 18.0;
const irr::video::SColor labelColor(0xffffffff);

Place toward(const Place& from, const Place& to, double metres) {
    const Place way = to - from;
    return from + way * (metres / way.getLength());
}

/// Surface, then what is painted on it: what comes later covers what came before.
class RunwayPainter {
public:
    RunwayPainter(ElementScene& scene, const Place& airport)
        : scene_(scene), elevation_(airport.Y),
          pieceMetres_(std::clamp(ElementScene::getDistance(airport) / 200.0, 12.0, 100.0)) {}

    void paint(const Place& a, const Place& b, double width, const RunwayLook& look) {
        const double length = (b - a).getLength();
        if (!(length > 1.0))
            return;
        constexpr double edge = 2.0;
        strip(toward(a, b, -edge), toward(b, a, -edge), width + 2.0 * edge, look.edge);
        strip(a, b, width, look.fill);
        if (!look.marks || length < leastMarkedMetres)
            return;
        constexpr double dash = 30.0, gap = 30.0, start = 90.0, bar = 30.0, inset = 8.0;
        for (double at = start; at + dash < length - start; at += dash + gap)
            strip(toward(a, b, at), toward(a, b, at + dash), 0.03 * width, look.marks);
        for (double at = -0.4; at < 0.45; at += 0.1) {
            bars(a, b, at * width, inset, bar, 0.05 * width, look.marks);
            bars(b, a, at * width, inset, bar, 0.05 * width, look.marks);
        }
    }

private:
    void bars(const Place& a, const Place& b, double aside, double from, double length, double width, uint32_t argb) {
        Place across(b.Z - a.Z, 0.0, a.X - b.X);
        across.normalize();
        strip(toward(a, b, from) + across * aside, toward(a, b, from + length) + across * aside, width, argb);
    }
    void strip(const Place& a, const Place& b, double width, uint32_t argb) {
        scene_.getGroundShapes().addStrip(a, b, width, lift, pieceMetres_, argb,
                                          [this](const Place& place) { return scene_.getGround(place, elevation_); });
    }

    static constexpr double leastMarkedMetres = 400.0;
    ElementScene& scene_;
    double elevation_;
    double pieceMetres_;
};

} // namespace

bool AirportRenderer::isPotentiallyRenderable3D(int index, Map3D* map, const char* staticBytes) {
    const bool isTarget = parts_.context->getProcedureManager()->isProcedureTarget(index);
    return VisionFilter{map->getSwitches(), isTarget}.showsAirport(staticBytes);
}

void AirportRenderer::render3D(const IChartElement* element, Map3D* map, int index) {
    const auto& airport = static_cast<const AirportElement&>(*element);
    ElementScene& scene = map->getElements();
    const bool isKnown = airport.elevationFeet > AirportElement::UnknownElevation;
    Place place = scene.getPlace(airport.position, isKnown ? airport.elevationFeet * MetresPerFoot : 0.0);
    if (const AirportSketch* sketch = airport.getSketch()) {
        RunwayPainter painter(scene, place);
        for (const AirportSketch::Strip& strip : sketch->getStrips()) {
            const auto at = [&](const AirportSketch::Point& point) { return place + Place(point.X, 0.0, point.Y); };
            const double width = strip.corners[0].getDistanceFrom(strip.corners[1]);
            painter.paint(at(strip.ends[0]), at(strip.ends[1]), std::max(width, leastWidth), runwayLook(strip.surface));
        }
    }
    place.Y = scene.getGround(place, place.Y);
    const bool isTarget = parts_.context->getProcedureManager()->isProcedureTarget(index);
    scene.addLabel(place, airport.ident.empty() ? airport.name : airport.ident, labelColor,
                   isTarget ? targetImportance : labelImportance, index);
}

} // namespace skyvane
