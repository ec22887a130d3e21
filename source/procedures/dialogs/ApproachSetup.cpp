#include "procedures/dialogs/ApproachSetup.h"

#include "chart/elements/AirportElement.h"
#include "core/text/Utf8.h"
#include "gui/windows/Questions.h"
#include "procedures/dialogs/ApproachScreen.h"

namespace skyvane {

bool ApproachSetup::setup(IndicatedProcedure& procedure, IChartElement* element) {
    const std::string trouble = choose(procedure, element);
    if (!trouble.empty()) {
        tellInBox(context_, decodeUtf8(trouble));
        return false;
    }
    setGeneralStandardValues();
    return ApproachScreen(context_, *this, *static_cast<const AirportElement*>(element)).run();
}

void ApproachSetup::renderPreview(IndicatedProcedure* procedure, irr::core::rect<int> rect) {
    preview_.drawElement(procedure->chartIndex, rect);
    const IChartElement* element = elementOf(*procedure);
    const std::optional<AppRunway> runway = runwayOfLine(*procedure, element);
    if (!runway)
        return;
    const auto& airport = *static_cast<const AirportElement*>(element);
    if (const std::optional<RunwayArrow> arrow = pointToRunway(airport, *runway, rect))
        preview_.drawArrow(*arrow, rect);
    preview_.drawAircraft(sketchFrame(airport, rect));
}

} // namespace skyvane
