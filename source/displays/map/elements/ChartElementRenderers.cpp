#include "displays/map/elements/ChartElementRenderers.h"

#include "displays/map/elements/AirportRenderer.h"
#include "displays/map/elements/AirspaceRenderer.h"
#include "displays/map/elements/AirwayRenderer.h"
#include "displays/map/elements/GroundGeometryRenderer.h"
#include "displays/map/elements/MarkRenderer.h"
#include "displays/map/elements/NDBRenderer.h"
#include "displays/map/elements/ObstructionRenderer.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/map/elements/VORRenderer.h"
#include "displays/map/elements/WaypointRenderer.h"

namespace skyvane {

ChartElementRenderers::ChartElementRenderers(Context* context)
    : parts_(std::make_unique<RendererParts>(context)), nothing_(std::make_unique<IChartElementRenderer>()) {
    add<AirspaceRenderer>(IChartElement::AIRSPACE);
    add<AirwayRenderer>(IChartElement::AIRWAY);
    add<ObstructionRenderer>(IChartElement::OBSTRUCTION);
    add<WaypointRenderer>(IChartElement::WAYPOINT);
    add<MarkRenderer>(IChartElement::MARK);
    add<NDBRenderer>(IChartElement::NDB);
    add<VORRenderer>(IChartElement::VOR);
    add<AirportRenderer>(IChartElement::AIRPORT);
    add<GroundGeometryRenderer>(IChartElement::GROUNDGEOMETRY);
}

ChartElementRenderers::~ChartElementRenderers() = default;

template <class Renderer>
void ChartElementRenderers::add(IChartElement::Type type) {
    renderers_[static_cast<size_t>(type)] = std::make_unique<Renderer>(*parts_);
}

IChartElementRenderer* ChartElementRenderers::get(IChartElement::Type type) const {
    const auto index = static_cast<size_t>(type);
    return index < renderers_.size() ? renderers_[index].get() : nothing_.get();
}

} // namespace skyvane
