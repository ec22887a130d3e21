#pragma once

#include "procedures/dialogs/PreviewPainter.h"
#include "procedures/direct/DirectProcedureFactory.h"

namespace skyvane {

/// Direct ways with their preview. They need no dialog. Main thread only.
class DirectSetup : public DirectProcedureFactory {
public:
    explicit DirectSetup(Context& context);

    void renderPreview(IndicatedProcedure* procedure, irr::core::rect<int> rect) override;

private:
    Context& context_;
    PreviewPainter painter_;
};

} // namespace skyvane
