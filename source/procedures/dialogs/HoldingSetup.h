#pragma once

#include "procedures/dialogs/CoursePreview.h"
#include "procedures/dialogs/ProcedureSetup.h"
#include "procedures/holding/HoldingProcedureFactory.h"

namespace skyvane {

/// Holdings with their dialog and their preview. Main thread only.
class HoldingSetup : public ProcedureSetup<HoldingProcedureFactory, CoursePreview> {
public:
    using ProcedureSetup::ProcedureSetup;

    bool setup(IndicatedProcedure& procedure, IChartElement* element) override;
    void renderPreview(IndicatedProcedure* procedure, irr::core::rect<int> rect) override;
};

} // namespace skyvane
