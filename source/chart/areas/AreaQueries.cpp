#include "chart/areas/AreaQueries.h"

#include "chart/areas/AreaLeaf.h"
#include "chart/areas/AreaNode.h"
#include "chart/elements/IChartElement.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/store/IChartElementSource.h"

namespace skyvane {
namespace {

/// Of the first static byte.
constexpr uint8_t TypeMask = 0x3f;
/// Of the second static byte of an airport.
constexpr uint8_t PrivateHeliport = 0x02 | 0x04;

bool isAirport(uint8_t firstStaticByte) {
    return (firstStaticByte & TypeMask) == IChartElement::AIRPORT;
}

bool isPrivateHeliport(const IChartElement& element) {
    if (element.getType() != IChartElement::AIRPORT)
        return false;
    char bytes[IChartElement::StaticDataSize] = {};
    element.writeStaticData(bytes);
    return (static_cast<uint8_t>(bytes[1]) & PrivateHeliport) == PrivateHeliport;
}

void appendElementsOfLeaf(IChartElementSource& source, const AreaLeaf& leaf, const ChartPosition& position,
                          double rangeMetres, bool airportsOnly, std::list<int>& elements) {
    const std::vector<uint8_t>& bytes = leaf.getStaticBytes();
    for (size_t i = 0; i < leaf.getElements().size(); ++i) {
        const size_t at = i * AreaLeaf::BytesPerElement;
        if (airportsOnly && !(at < bytes.size() && isAirport(bytes[at])))
            continue;
        const int id = leaf.getElements()[i];
        const IChartElement* element = source.getChartElement(id);
        if (!element || (airportsOnly && element->getType() != IChartElement::AIRPORT) || isPrivateHeliport(*element))
            continue;
        if (calcDistance2(position, element->getPosition()) <= rangeMetres)
            elements.push_back(id);
    }
}

} // namespace

void hlp_getBestFittingAreaList(IChartElementSource& source, const ChartPosition& nw, const ChartPosition& se,
                                int index, double targetSquareDegrees, std::list<int>& areas) {
    const IArea* area = source.getArea(index);
    if (!area)
        return;
    bool descended = false;
    const AreaNode* node = area->asNode();
    if (node && targetSquareDegrees < node->getSquareDegrees())
        for (int i = 0; i < node->getChildCount(); ++i) {
            const IArea* child = source.getArea(node->getChild(i));
            if (!child || !child->Overlap(nw, se))
                continue;
            hlp_getBestFittingAreaList(source, nw, se, node->getChild(i), targetSquareDegrees, areas);
            descended = true;
        }
    if (!descended)
        areas.push_back(index);
}

void appendLeafes(IChartElementSource& source, int index, std::list<int>& leafs) {
    const IArea* area = source.getArea(index);
    if (!area)
        return;
    const AreaNode* node = area->asNode();
    if (!node) {
        leafs.push_back(index);
        return;
    }
    for (int i = 0; i < node->getChildCount(); ++i)
        appendLeafes(source, node->getChild(i), leafs);
}

void appendElementsInVicinity(IChartElementSource& source, int index, const ChartPosition& position, double rangeMetres,
                              bool airportsOnly, std::list<int>& elements) {
    const IArea* area = source.getArea(index);
    if (!area)
        return;
    if (const AreaLeaf* leaf = area->asLeaf()) {
        appendElementsOfLeaf(source, *leaf, position, rangeMetres, airportsOnly, elements);
        return;
    }
    const AreaNode* node = area->asNode();
    for (int i = 0; i < node->getChildCount(); ++i)
        appendElementsInVicinity(source, node->getChild(i), position, rangeMetres, airportsOnly, elements);
}

void hlp_findAreas(int index, IChartElementSource* source, const ChartPosition& position, std::map<int, bool>& leafs) {
    const IArea* area = source->getArea(index);
    if (!area || !area->isInside(position))
        return;
    const AreaNode* node = area->asNode();
    if (!node) {
        leafs[index] = true;
        return;
    }
    for (int i = 0; i < node->getChildCount(); ++i)
        hlp_findAreas(node->getChild(i), source, position, leafs);
}

} // namespace skyvane
