#pragma once

#include "procedures/dialogs/ProcedureScreen.h"
#include "procedures/framework/GeneralProcedureFactory.h"

namespace skyvane {

/// How a procedure is flown whatever its kind: rate of turn, speed, tolerances. What is typed is shown at once as the
/// turn that comes of it; the values are those of the factory after "Finish" only.
class GeneralProcedureScreen : public ProcedureScreen {
public:
    using Values = GeneralProcedureFactory::GeneralValues;

    /// The values outlive the screen.
    GeneralProcedureScreen(Context& context, Values& values);

protected:
    void onEvent(const irr::SEvent& event) override;
    bool onNext() override;

private:
    void showResult();

    Values& values_;
    Values edited_;
};

} // namespace skyvane
