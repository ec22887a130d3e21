#pragma once

#include "procedures/dialogs/CoursePreview.h"
#include "procedures/holding/HoldingProcedureFactory.h"

namespace skyvane {

/// Holdings with their dialog and their preview. Main thread only.
class HoldingSetup : public HoldingProcedureFactory {
public:
    explicit HoldingSetup(Context& context);

    bool setup(IndicatedProcedure& procedure, IChartElement* element) override;
    void renderPreview(IndicatedProcedure* procedure, irr::core::rect<int> rect) override;

private:
    Context& context_;
    CoursePreview preview_;
};

} // namespace skyvane
