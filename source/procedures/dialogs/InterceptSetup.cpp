#include "procedures/dialogs/InterceptSetup.h"

#include "chart/elements/AirwayElement.h"
#include "procedures/dialogs/InterceptScreen.h"

namespace skyvane {
namespace {

constexpr int airwayWidth = 2;
const irr::video::SColor airwayColor(0xff8fa6bd);

} // namespace

bool InterceptSetup::setup(IndicatedProcedure& procedure, IChartElement* element) {
    prepare(procedure, element);
    return InterceptScreen(context_, *this, element ? element->getIndicatedLabel(true, false) : "").run();
}

void InterceptSetup::renderPreview(IndicatedProcedure* procedure, irr::core::rect<int> rect) {
    if (preview_.isDue(*procedure, false)) {
        prepare(*procedure, elementOf(*procedure));
        CoursePreview::Scene scene;
        scene.fixes = {getPosition()};
        for (const auto& [text, id] : findConnectedAirways()) {
            const auto& airway = *static_cast<const AirwayElement*>(context_.getCharts()->getChartElement(id));
            scene.guides.push_back({airway.start, airway.end, airwayWidth, airwayColor});
            scene.seen.insert(scene.seen.end(), {airway.start, airway.end});
        }
        preview_.show(std::move(scene));
    }
    preview_.paint(rect);
}

} // namespace skyvane
