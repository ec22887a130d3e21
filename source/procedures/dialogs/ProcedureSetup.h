#pragma once

#include "chart/store/IChartElementSource.h"
#include "core/Context.h"
#include "procedures/framework/IndicatedProcedure.h"

namespace skyvane {

/// What the dialogs add to a factory of procedures: the program around it, and what draws the previews of its lines.
/// Main thread only.
///
///     class HoldingSetup : public ProcedureSetup<HoldingProcedureFactory, CoursePreview> { ... renderPreview ... };
template <class Factory, class Preview>
class ProcedureSetup : public Factory {
public:
    /// The context outlives it.
    explicit ProcedureSetup(Context& context) : Factory(&context), context_(context), preview_(context) {}

protected:
    /// Null where the charts, or their element, are gone.
    IChartElement* elementOf(const IndicatedProcedure& line) const {
        IChartElementSource* charts = context_.getCharts();
        return charts ? charts->getChartElement(line.chartIndex) : nullptr;
    }

    Context& context_;
    Preview preview_;
};

} // namespace skyvane
