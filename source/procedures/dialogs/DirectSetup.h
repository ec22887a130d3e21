#pragma once

#include "procedures/dialogs/PreviewPainter.h"
#include "procedures/dialogs/ProcedureSetup.h"
#include "procedures/direct/DirectProcedureFactory.h"

namespace skyvane {

/// Direct ways with their preview. They need no dialog. Main thread only.
class DirectSetup : public ProcedureSetup<DirectProcedureFactory, PreviewPainter> {
public:
    using ProcedureSetup::ProcedureSetup;

    void renderPreview(IndicatedProcedure* procedure, irr::core::rect<int> rect) override;
};

} // namespace skyvane
