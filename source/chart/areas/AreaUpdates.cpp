#include "chart/areas/AreaUpdates.h"

#include "chart/areas/AreaTree.h"
#include "chart/elements/IChartElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/LocalFrame.h"

#include <vector>

namespace skyvane {
namespace {

constexpr double SampleMetres = 10000.0;
constexpr double LongestSampledMetres = 5000000.0;

ChartPosition normalised(const ChartPosition& position) {
    return ChartPosition(Angle0to360(position.longitude), Latitudinize(position.latitude));
}

void appendSamples(const ChartPosition& from, const ChartPosition& to, std::vector<ChartPosition>& places) {
    auto direction = ChartPosition2Vector3df64(from, to, 0.0);
    const double length = direction.getLength();
    if (!(length > SampleMetres && length <= LongestSampledMetres))
        return;
    direction.normalize();
    for (double walked = SampleMetres; walked < length; walked += SampleMetres)
        places.push_back(normalised(Vector3df642ChartPosition(from, direction * walked)));
}

/// All places that decide which areas the element touches.
std::vector<ChartPosition> sampleOutline(const IChartElement& element) {
    const int n = element.getAreaDefiningPointCount();
    std::vector<ChartPosition> places;
    for (int i = 0; i < n; ++i) {
        const ChartPosition point = normalised(element.getAreaDefiningPoint(i));
        places.push_back(point);
        const bool lineEnds = n == 1 || (n == 2 && i == 1);
        if (!lineEnds)
            appendSamples(point, normalised(element.getAreaDefiningPoint((i + 1) % n)), places);
    }
    return places;
}

struct Entry {
    int id;
    uint8_t staticBytes[IChartElement::StaticDataSize];
};

/// Hands each child those places alone that its parent contains.
void enter(IArea& area, const std::vector<ChartPosition>& places, const Entry& entry, IArea** table) {
    std::vector<ChartPosition> inside;
    for (const ChartPosition& place : places)
        if (area.isInside(place))
            inside.push_back(place);
    if (inside.empty())
        return;
    if (AreaLeaf* leaf = area.asLeaf()) {
        leaf->addElement(entry.id, entry.staticBytes);
        return;
    }
    const AreaNode* node = area.asNode();
    for (int i = 0; i < node->getChildCount(); ++i)
        if (IArea* child = getAreaOfTable(table, node->getChild(i)))
            enter(*child, inside, entry, table);
}

} // namespace

void updateAreaTree(IArea* area, const IChartElement* element, int id, IArea** table) {
    if (!area || !element)
        return;
    Entry entry{id, {}};
    element->writeStaticData(reinterpret_cast<char*>(entry.staticBytes));
    enter(*area, sampleOutline(*element), entry, table);
}

void deleteElementFromAreaTree(int id, IArea** table) {
    for (int index = 0; index < AreaCount; ++index)
        if (AreaLeaf* leaf = table[index] ? table[index]->asLeaf() : nullptr)
            leaf->removeElement(id);
}

bool checkStaticDataSanity(IArea** table, unsigned index) {
    const IArea* area = index <= unsigned(LastAreaIndex) ? table[index] : nullptr;
    if (!area)
        return true;
    if (const AreaLeaf* leaf = area->asLeaf())
        return leaf->isSane();
    const AreaNode* node = area->asNode();
    for (int i = 0; i < node->getChildCount(); ++i)
        if (!checkStaticDataSanity(table, static_cast<unsigned>(node->getChild(i))))
            return false;
    return true;
}

} // namespace skyvane
