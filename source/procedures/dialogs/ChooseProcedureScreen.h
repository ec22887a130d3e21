#pragma once

#include "procedures/dialogs/ProcedureScreen.h"

namespace skyvane {

class IChartElement;
class SearchBoxHandler;

/// Where to, and what to fly there: the search box with the procedures that lead to the destination and a preview of
/// the one that is selected. "Next" opens the dialog of that procedure; when the pilot finishes it, the procedure goes
/// into the plan after the current one, becomes current, and the paths are made.
class ChooseProcedureScreen : public ProcedureScreen {
public:
    /// See SearchBoxHandler::init.
    ChooseProcedureScreen(Context& context, const IChartElement* destination, int id, bool keepsProcedure);
    ~ChooseProcedureScreen() override;

protected:
    void onEvent(const irr::SEvent& event) override;
    bool onNext() override;

private:
    void updateButtons();

    SearchBoxHandler& search_;
};

} // namespace skyvane
