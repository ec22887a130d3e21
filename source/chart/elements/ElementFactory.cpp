#include "chart/elements/ElementFactory.h"

#include "chart/elements/AirportElement.h"
#include "chart/elements/AirspaceElement.h"
#include "chart/elements/AirwayElement.h"
#include "chart/elements/ElementKinds.h"
#include "chart/elements/GroundGeometryElement.h"
#include "chart/elements/MarkElement.h"
#include "chart/elements/NDBElement.h"
#include "chart/elements/ObstructionElement.h"
#include "chart/elements/VORElement.h"
#include "chart/elements/WaypointElement.h"

namespace skyvane {

std::unique_ptr<IChartElement> createChartElement(int32_t type) {
    switch (type) {
    case IChartElement::AIRSPACE:
        return std::make_unique<AirspaceElement>();
    case IChartElement::AIRWAY:
        return std::make_unique<AirwayElement>();
    case IChartElement::OBSTRUCTION:
        return std::make_unique<ObstructionElement>();
    case IChartElement::WAYPOINT:
        return std::make_unique<WaypointElement>();
    case IChartElement::MARK:
        return std::make_unique<MarkElement>();
    case IChartElement::NDB:
        return std::make_unique<NDBElement>();
    case IChartElement::VOR:
        return std::make_unique<VORElement>();
    case IChartElement::AIRPORT:
        return std::make_unique<AirportElement>();
    case IChartElement::GROUNDGEOMETRY:
        return std::make_unique<GroundGeometryElement>();
    default:
        return nullptr;
    }
}

std::unique_ptr<IChartElement> ElementFactory::Create(IIndexCorrectionCallback*) const {
    return createChartElement(type_);
}

std::string ElementFactory::getName() const {
    return elementKinds[type_].name;
}

std::string ElementFactory::getStringDescriptor() const {
    return elementKinds[type_].descriptor;
}

ElementFactories makeElementFactories() {
    ElementFactories factories;
    for (const ElementKind& kind : elementKinds)
        factories[static_cast<size_t>(kind.type)] = std::make_unique<ElementFactory>(kind.type);
    return factories;
}

FactoriesByType sortByType(const ElementFactories& factories) {
    FactoriesByType byType{};
    for (const ElementKind& kind : elementKinds)
        for (const std::unique_ptr<IChartElementFactory>& factory : factories)
            if (factory && factory->getStringDescriptor() == kind.descriptor)
                byType[static_cast<size_t>(kind.type)] = factory.get();
    return byType;
}

} // namespace skyvane
