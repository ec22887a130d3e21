#pragma once

#include "procedures/dialogs/CoursePreview.h"
#include "procedures/dialogs/ProcedureScreen.h"
#include "procedures/holding/HoldingProcedureFactory.h"

namespace skyvane {

/// The pattern of a holding, shown as it is flown, and its place where there is no element. The factory has been
/// prepared; it holds what the pilot wants after "Finish".
class HoldingScreen : public ProcedureScreen {
public:
    /// `place` is what the holding is at, in UTF-8. The factory outlives the screen.
    HoldingScreen(Context& context, HoldingProcedureFactory& factory, const std::string& place);

protected:
    void onEvent(const irr::SEvent& event) override;
    bool onNext() override;

private:
    void fillIn();
    /// Takes what is typed; in words what is wrong with it, empty for nothing.
    std::wstring take();
    std::wstring takePlace();
    void refresh();

    HoldingProcedureFactory& factory_;
    CoursePreview preview_;
};

} // namespace skyvane
