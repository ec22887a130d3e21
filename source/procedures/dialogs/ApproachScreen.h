#pragma once

#include "procedures/approach/ApproachProcedureFactory.h"
#include "procedures/dialogs/CourseScreen.h"

namespace skyvane {

class AirportElement;
class NumberEditBox;

/// How an approach to a runway end is flown: one of the profiles, and in detail the length of final and the altitude
/// where it begins, with the rate of descent that comes of them, what the charts don't know of the runway, and the path
/// from where the aircraft is now. The factory has chosen the runway end; it holds what the pilot wants after "Finish".
class ApproachScreen : public CourseScreen {
public:
    /// The factory outlives the screen; the airport is used by the constructor only.
    ApproachScreen(Context& context, ApproachProcedureFactory& factory, const AirportElement& airport);

protected:
    bool onEntry(const irr::SEvent& event) override;
    /// Brings what is shown to the factory's values.
    void refresh() override;

private:
    void addNumberBoxes();
    void showWarnings(const IProcedure* made);
    void showPath();

    ApproachProcedureFactory& factory_;
    LandingRunway landing_;
    NumberEditBox* final_ = nullptr; ///< A child of the window.
    NumberEditBox* altitude_ = nullptr;
};

} // namespace skyvane
