#pragma once

#include "procedures/dialogs/CourseScreen.h"
#include "procedures/holding/HoldingProcedureFactory.h"

namespace skyvane {

/// The pattern of a holding, shown as it is flown, and its place where there is no element. The factory has been
/// prepared; it holds what the pilot wants after "Finish".
class HoldingScreen : public CourseScreen {
public:
    /// `place` is what the holding is at, in UTF-8. The factory outlives the screen.
    HoldingScreen(Context& context, HoldingProcedureFactory& factory, const std::string& place);

protected:
    std::wstring take() override;
    void refresh() override;

private:
    void fillIn();
    std::wstring takePlace();

    HoldingProcedureFactory& factory_;
};

} // namespace skyvane
