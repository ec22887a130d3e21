#include "displays/instruments/TargetName.h"

#include "chart/elements/IChartElement.h"
#include "chart/store/IChartElementSource.h"
#include "core/Context.h"
#include "core/text/Utf8.h"
#include "procedures/framework/IProcedure.h"

#include <algorithm>

namespace skyvane {

ShortText nameOfTarget(Context& context, const IProcedure& procedure) {
    return nameOfTarget(context, procedure.getLocation());
}

ShortText nameOfTarget(Context& context, const ProcedureLocation& location) {
    IChartElementSource* charts = context.getCharts();
    if (!charts || location.type != ProcedureLocation::ChartElement)
        return {};
    const IChartElement* element = charts->getChartElement(location.chartIndex);
    if (!element || element->getTrieInsertionNameCount() < 1)
        return {};
    const std::string name = element->getTrieInsertionName(0);
    const bool isPlain = std::all_of(name.begin(), name.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
    return isPlain ? ShortText().append(std::string_view(name)) : ShortText(decodeUtf8(name).c_str());
}

} // namespace skyvane
