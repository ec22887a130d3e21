#pragma once

#include "procedures/dialogs/CourseScreen.h"
#include "procedures/intercept/InterceptProcedureFactory.h"

#include <vector>

namespace skyvane {

/// Which line through a navaid or fix is met, and how: one of the airways that begin or end there, or a radial; towards
/// the element or away from it; and the angle. Shows the path from where the aircraft is now. The factory has been
/// prepared; it holds what the pilot wants after "Finish".
class InterceptScreen : public CourseScreen {
public:
    /// `place` is what the line leads through, in UTF-8. The factory outlives the screen.
    InterceptScreen(Context& context, InterceptProcedureFactory& factory, const std::string& place);

protected:
    std::wstring take() override;
    void refresh() override;

private:
    void fillAirways();
    std::wstring takeAirway();
    std::wstring takeRadial();

    InterceptProcedureFactory& factory_;
    std::vector<int> airways_; ///< Of the rows of the list.
};

} // namespace skyvane
