#include "terrain/tree/ITerrainNode.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double Tolerance = 0.0001;

bool equals(const ITerrainNode& node, const ChartPosition& nw, const ChartPosition& se) {
    return std::fabs(node.getNWEdge().longitude - nw.longitude) < Tolerance &&
           std::fabs(node.getNWEdge().latitude - nw.latitude) < Tolerance &&
           std::fabs(node.getSEEdge().longitude - se.longitude) < Tolerance &&
           std::fabs(node.getSEEdge().latitude - se.latitude) < Tolerance;
}

bool contains(const ITerrainNode& node, const ChartPosition& nw, const ChartPosition& se) {
    return nw.longitude > node.getNWEdge().longitude - Tolerance &&
           nw.latitude < node.getNWEdge().latitude + Tolerance &&
           se.longitude < node.getSEEdge().longitude + Tolerance && se.latitude > node.getSEEdge().latitude - Tolerance;
}

} // namespace

ITerrainNode* findFittingNode(ITerrainNode* root, const ChartPosition& nw, const ChartPosition& se) {
    if (!std::isfinite(nw.longitude + nw.latitude + se.longitude + se.latitude))
        return nullptr;
    ChartPosition raised = se;
    if (raised.longitude < nw.longitude)
        raised.longitude += 360.0 * std::ceil((nw.longitude - raised.longitude) / 360.0);
    for (ITerrainNode* node = root; node;) {
        if (equals(*node, nw, raised))
            return node;
        ITerrainNode* next = nullptr;
        for (int index = 0; index < node->getChildrenCount() && !next; ++index)
            if (contains(*node->getChild(index), nw, raised))
                next = node->getChild(index);
        node = next;
    }
    return nullptr;
}

} // namespace skyvane
