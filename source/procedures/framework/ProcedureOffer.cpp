#include "procedures/framework/ProcedureOffer.h"

#include "chart/elements/AirportElement.h"

namespace skyvane {
namespace {

bool lacksElevation(const IChartElement* element) {
    return element && element->getType() == IChartElement::AIRPORT &&
           static_cast<const AirportElement*>(element)->elevationFeet == AirportElement::UnknownElevation;
}

} // namespace

ProcedureOffer offerProcedures(const std::vector<std::unique_ptr<IProcedureFactory>>& factories, IChartElement* element,
                               int id) {
    if (lacksElevation(element))
        return {{}, "Error: No elevation available."};
    ProcedureOffer offer;
    for (const auto& factory : factories)
        for (IndicatedProcedure& line : factory->getPossibleProcedures(element, id))
            offer.lines.push_back(std::move(line));
    return offer;
}

int selectLine(int count, int previous, bool isSameDestination) {
    return isSameDestination && previous >= 0 && previous < count ? previous : count - 1;
}

} // namespace skyvane
