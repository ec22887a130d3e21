#include "displays/map/MapSelection.h"

#include "chart/areas/AreaLeaf.h"
#include "chart/areas/AreaNode.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/store/IChart.h"
#include "core/time/Time.h"
#include "displays/map/IChartElementRenderer.h"
#include "displays/map/Map2D.h"
#include "displays/map/MapContents.h"
#include "displays/mapmath/MapView.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr double nearMetres = 2.0;
constexpr double dragSeconds = 0.15;
constexpr double reachDegrees = 0.25;
constexpr uint8_t typeMask = 0x3f; // of the first static byte

} // namespace

/// Higher priorities first; the id decides between equals, so that the order is always the same.
bool MapSelection::pairLess(const Candidate& a, const Candidate& b) {
    return a.priority != b.priority ? a.priority > b.priority : a.index < b.index;
}

ChartPosition MapSelection::getPosition() const {
    return view_.toChart(view_.getPivot());
}

void MapSelection::forget() {
    candidates_.clear();
    current_ = 0;
    isStale_ = true;
}

void MapSelection::next() {
    if (!candidates_.empty())
        current_ = (current_ + 1) % candidates_.size();
}

void MapSelection::update() {
    const ChartPosition position = getPosition();
    // While a finger moves the map, a few times a second do.
    const bool isEarly = view_.getMode() == MapMode::Dragging && Secs() - lookedAtSeconds_ < dragSeconds;
    if (isEarly)
        return;
    if (!isStale_ && calcDistance2(position, lookedAt_) <= nearMetres)
        return;
    const int before = getIndex();
    const bool isElsewhere = calcDistance2(position, lookedAt_) > nearMetres;
    lookedAt_ = position;
    lookedAtSeconds_ = Secs();
    isStale_ = false;
    find();
    current_ = 0;
    for (size_t i = 0; !isElsewhere && i < candidates_.size(); ++i)
        if (candidates_[i].index == before)
            current_ = i;
}

void MapSelection::find() {
    candidates_.clear();
    IChart* chart = map_.getChart();
    if (!chart || !map_.getSwitches().chartElements)
        return;
    const ChartPosition at = getPosition();
    const MapBox box{at.longitude - reachDegrees, at.latitude - reachDegrees, at.longitude + reachDegrees,
                     at.latitude + reachDegrees};
    const std::list<int> leafs =
        chart->getLeafesFromAreaList(chart->getBestFittingAreaList(box.getNW(), box.getSE(), 1.0));
    for (const int number : leafs)
        if (const IArea* area = chart->getArea(number))
            checkAreaSelection(*area);
    std::sort(candidates_.begin(), candidates_.end(), pairLess);
    // What lies in several areas was found in each of them.
    const auto isSame = [](const Candidate& a, const Candidate& b) { return a.index == b.index; };
    candidates_.erase(std::unique(candidates_.begin(), candidates_.end(), isSame), candidates_.end());
}

void MapSelection::checkAreaSelection(const IArea& area) {
    const AreaLeaf* leaf = area.asLeaf();
    if (!leaf || !leaf->isSane())
        return;
    const irr::core::vector2d<int> cross = toPixel(view_.getPivot());
    for (size_t i = 0; i < leaf->getElements().size(); ++i) {
        const int index = leaf->getElements()[i];
        const uint8_t* bytes = &leaf->getStaticBytes()[AreaLeaf::BytesPerElement * i];
        char summary[AreaLeaf::BytesPerElement];
        std::copy(bytes, bytes + AreaLeaf::BytesPerElement, summary);
        IChartElementRenderer* renderer = contents_.getRenderer(bytes[0] & typeMask);
        if (!renderer || !renderer->isPotentiallyRenderable(index, &map_, summary))
            continue;
        IChartElement* element = map_.getChart()->getChartElement(index);
        if (element && renderer == contents_.getRenderer(element->getType()) &&
            renderer->isMouseOver2D(&map_, element, index, cross))
            candidates_.push_back({renderer->getSelectPriority(element), index});
    }
}

IChartElement* MapSelection::getElement() const {
    IChart* chart = map_.getChart();
    return chart && !candidates_.empty() ? chart->getChartElement(getIndex()) : nullptr;
}

void MapSelection::draw() {
    IChartElement* element = getElement();
    IChartElementRenderer* renderer = element ? contents_.getRenderer(element->getType()) : nullptr;
    if (renderer)
        renderer->render2D(element, &map_, getIndex(), false, true);
}

} // namespace skyvane
