#pragma once

#include "procedures/dialogs/CoursePreview.h"
#include "procedures/dialogs/ProcedureScreen.h"
#include "procedures/intercept/InterceptProcedureFactory.h"

#include <vector>

namespace skyvane {

/// Which line through a navaid or fix is met, and how: one of the airways that begin or end there, or a radial; towards
/// the element or away from it; and the angle. Shows the path from where the aircraft is now. The factory has been
/// prepared; it holds what the pilot wants after "Finish".
class InterceptScreen : public ProcedureScreen {
public:
    /// `place` is what the line leads through, in UTF-8. The factory outlives the screen.
    InterceptScreen(Context& context, InterceptProcedureFactory& factory, const std::string& place);

protected:
    void onEvent(const irr::SEvent& event) override;
    bool onNext() override;

private:
    void fillAirways();
    /// In words what is wrong with what was entered; empty when the factory has taken it.
    std::wstring take();
    std::wstring takeAirway();
    std::wstring takeRadial();
    void refresh();

    InterceptProcedureFactory& factory_;
    CoursePreview preview_;
    std::vector<int> airways_; ///< Of the rows of the list.
};

} // namespace skyvane
