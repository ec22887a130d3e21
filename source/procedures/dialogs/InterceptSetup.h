#pragma once

#include "procedures/dialogs/CoursePreview.h"
#include "procedures/dialogs/ProcedureSetup.h"
#include "procedures/intercept/InterceptProcedureFactory.h"

namespace skyvane {

/// Interceptions with their dialog and their preview. Main thread only.
class InterceptSetup : public ProcedureSetup<InterceptProcedureFactory, CoursePreview> {
public:
    using ProcedureSetup::ProcedureSetup;

    bool setup(IndicatedProcedure& procedure, IChartElement* element) override;
    /// The element with the airways that begin or end there.
    void renderPreview(IndicatedProcedure* procedure, irr::core::rect<int> rect) override;
};

} // namespace skyvane
