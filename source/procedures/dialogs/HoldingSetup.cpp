#include "procedures/dialogs/HoldingSetup.h"

#include "chart/elements/IChartElement.h"
#include "procedures/dialogs/HoldingScreen.h"

namespace skyvane {

bool HoldingSetup::setup(IndicatedProcedure& procedure, IChartElement* element) {
    prepare(procedure, element);
    const std::string place = element ? element->getIndicatedLabel(true, false) : "User Position";
    return HoldingScreen(context_, *this, place).run();
}

/// The usual pattern; its course follows the aircraft.
void HoldingSetup::renderPreview(IndicatedProcedure* procedure, irr::core::rect<int> rect) {
    if (preview_.isDue(*procedure, true)) {
        prepare(*procedure, elementOf(*procedure));
        CoursePreview::Scene scene;
        scene.course = makePattern(0.0);
        scene.fixes = {getPosition()};
        preview_.show(std::move(scene));
    }
    preview_.paint(rect);
}

} // namespace skyvane
