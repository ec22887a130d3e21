#pragma once

#include "procedures/approach/ApproachProcedureFactory.h"
#include "procedures/dialogs/PreviewPainter.h"
#include "procedures/dialogs/ProcedureSetup.h"

namespace skyvane {

/// Approaches with their dialog and their preview. Main thread only.
class ApproachSetup : public ProcedureSetup<ApproachProcedureFactory, PreviewPainter> {
public:
    using ProcedureSetup::ProcedureSetup;

    bool setup(IndicatedProcedure& procedure, IChartElement* element) override;
    /// The airport's sketch with an arrow to the runway end, and the aircraft.
    void renderPreview(IndicatedProcedure* procedure, irr::core::rect<int> rect) override;
};

} // namespace skyvane
