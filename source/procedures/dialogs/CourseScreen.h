#pragma once

#include "procedures/dialogs/CoursePreview.h"
#include "procedures/dialogs/ProcedureScreen.h"
#include "procedures/framework/GeneralProcedureFactory.h"

#include <string>

namespace skyvane {

/// The dialog of one kind of procedure: it shows the path that comes of what is entered ("spreview"), opens the
/// settings that all kinds have ("bgeneral"), and lets the pilot go on only with what can be flown.
class CourseScreen : public ProcedureScreen {
protected:
    /// The values outlive the screen.
    CourseScreen(Context& context, const Form& form, GeneralProcedureFactory::GeneralValues& general);

    /// Takes what is entered; in words what is wrong with it, empty for nothing.
    virtual std::wstring take() { return {}; }
    /// Whether the event has changed what is entered.
    virtual bool onEntry(const irr::SEvent& event) { return isEntry(event); }
    /// Shows what comes of it. Called after each change; the first time is for who derives from it to call.
    virtual void refresh() = 0;

    void onEvent(const irr::SEvent& event) final;
    bool onNext() final;

    CoursePreview& preview() { return preview_; }

private:
    GeneralProcedureFactory::GeneralValues& general_;
    CoursePreview preview_;
};

} // namespace skyvane
