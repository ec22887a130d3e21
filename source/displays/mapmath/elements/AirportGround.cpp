#include "displays/mapmath/elements/AirportGround.h"

#include "chart/areas/AreaLeaf.h"
#include "chart/elements/AirportElement.h"
#include "chart/elements/GroundGeometryElement.h"
#include "chart/geodesy/EarthRectangles.h"
#include "chart/geodesy/LocalFrame.h"
#include "chart/store/IChartElementSource.h"
#include "displays/mapmath/elements/GroundStyles.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace skyvane {

namespace {

constexpr double aroundMetres = 500.0;
constexpr size_t mostFeatures = 1000;
constexpr int featureBits = 0x1f;

double reachOf(const AirportElement& airport) {
    const AirportSketch sketch(airport);
    return std::max(sketch.getHalfExtent().X, sketch.getHalfExtent().Y) + aroundMetres;
}

AirportGround::Feature toFeature(const GroundGeometryElement& element, const ChartPosition& centre) {
    AirportGround::Feature feature{
        element.feature, element.geoType == GroundGeometryElement::Polygon, element.getWidthSteps() * 0.5, {}};
    feature.points.reserve(element.vertices.size());
    for (const ChartPosition& vertex : element.vertices) {
        const auto place = ChartPosition2Vector3df64(centre, vertex, 0.0);
        feature.points.emplace_back(place.X, place.Z);
    }
    return feature;
}

bool isNear(const AirportGround::Feature& feature, double reach) {
    return std::any_of(feature.points.begin(), feature.points.end(), [reach](const ShapePoint& point) {
        return std::fabs(point.X) <= reach && std::fabs(point.Y) <= reach;
    });
}

} // namespace

AirportGround findAirportGround(IChartElementSource& charts, const AirportElement& airport) {
    AirportGround ground;
    const double reach = reachOf(airport);
    ChartPosition nw, se;
    calcRectangleAround(nw, se, airport.position, 2.0 * reach);
    std::unordered_set<int> seen;
    for (const int index : charts.getLeafesFromAreaList(charts.getBestFittingAreaList(nw, se, 1.0))) {
        const IArea* area = charts.getArea(index);
        const AreaLeaf* leaf = area ? area->asLeaf() : nullptr;
        if (!leaf)
            continue;
        const auto& bytes = leaf->getStaticBytes();
        const auto& ids = leaf->getElements();
        for (size_t i = 0; i < ids.size() && ground.features.size() < mostFeatures; ++i) {
            const uint8_t* summary = bytes.data() + AreaLeaf::BytesPerElement * i;
            const bool isGround = (summary[0] & 0x3f) == IChartElement::GROUNDGEOMETRY &&
                                  isAirportGround(static_cast<uint8_t>(summary[2] & featureBits));
            if (!isGround || !seen.insert(ids[i]).second)
                continue;
            const IChartElement* element = charts.getChartElement(ids[i]);
            if (!element || element->getType() != IChartElement::GROUNDGEOMETRY)
                continue;
            AirportGround::Feature feature =
                toFeature(*static_cast<const GroundGeometryElement*>(element), airport.position);
            if (isNear(feature, reach))
                ground.features.push_back(std::move(feature));
        }
    }
    std::stable_sort(ground.features.begin(), ground.features.end(), [](const auto& a, const auto& b) {
        return groundPriority(a.feature) < groundPriority(b.feature);
    });
    return ground;
}

} // namespace skyvane
