#include "displays/information/GlideDestination.h"

#include "chart/elements/AirportElement.h"
#include "chart/store/IChartElementSource.h"
#include "core/Context.h"
#include "core/text/Utf8.h"
#include "displays/glide/GlideReadings.h"
#include "procedures/aircraft/profiles/Aircraft.h"
#include "procedures/framework/IProcedure.h"

namespace skyvane {

GlideSources GlideDestination::read() {
    IProcedure& procedure = *context_.getCurrentProcedure();
    const bool leadsToElement = procedure.getLocationType() == ProcedureLocation::ChartElement;
    const long long index = leadsToElement ? procedure.getLocationChartIndex() : noElement;
    if (index != index_) {
        name_ = ShortText();
        hasElevation_ = false;
        if (leadsToElement)
            readElement(procedure.getLocationChartIndex());
        index_ = index;
    }
    GlideSources sources;
    sources.sensors = context_.getSensorManager();
    sources.inverseGlideRatio = context_.getCurrentAircraft().inverseGlideRatio;
    if (procedure.getType() != IProcedure::None)
        sources.distanceNauticalMiles = procedure.getLength();
    sources.hasElevation = hasElevation_;
    sources.elevationFeet = elevationFeet_;
    return sources;
}

void GlideDestination::readElement(int chartIndex) {
    IChartElementSource* charts = context_.getCharts();
    IChartElement* element = charts ? charts->getChartElement(chartIndex) : nullptr;
    if (!element || element->getType() != IChartElement::AIRPORT)
        return;
    const auto& airport = static_cast<const AirportElement&>(*element);
    name_ = ShortText(decodeUtf8(airport.name.empty() ? airport.ident : airport.name).c_str());
    hasElevation_ = airport.elevationFeet > AirportElement::UnknownElevation;
    elevationFeet_ = hasElevation_ ? airport.elevationFeet : 0.0;
}

} // namespace skyvane
