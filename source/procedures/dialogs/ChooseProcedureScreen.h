#pragma once

#include "procedures/dialogs/ProcedureScreen.h"
#include "procedures/framework/IProcedure.h"

namespace skyvane {

class IChartElement;
class SearchBoxHandler;

/// Where to, and what to fly there: the search box with the procedures that lead to the destination and a preview of
/// the one that is selected. "Next" opens the dialog of that procedure; when the pilot finishes it, the procedure is
/// made. A direct way is put into the plan by the search box.
class ChooseProcedureScreen : public ProcedureScreen {
public:
    /// See SearchBoxHandler::init.
    ChooseProcedureScreen(Context& context, const IChartElement* destination, int id, bool keepsProcedure);
    ~ChooseProcedureScreen() override;

    /// What was made, after run() was true; null for a direct way.
    std::unique_ptr<IProcedure> takeProcedure() { return std::move(made_); }

protected:
    void onEvent(const irr::SEvent& event) override;
    bool onNext() override;

private:
    void updateButtons();

    SearchBoxHandler& search_;
    std::unique_ptr<IProcedure> made_;
};

} // namespace skyvane
