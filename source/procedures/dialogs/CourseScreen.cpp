#include "procedures/dialogs/CourseScreen.h"

#include "core/Context.h"
#include "gui/windows/Questions.h"
#include "gui/windows/WindowTools.h"
#include "procedures/dialogs/GeneralProcedureScreen.h"
#include "procedures/dialogs/PreviewPane.h"

namespace skyvane {

CourseScreen::CourseScreen(Context& context, const Form& form, GeneralProcedureFactory::GeneralValues& general)
    : ProcedureScreen(context, form), general_(general), preview_(context) {
    PreviewPane::add(context, window(), gui().getSpecialRectangle("spreview"),
                     [this](const irr::core::rect<int>& rect) { preview_.paint(rect); });
}

void CourseScreen::onEvent(const irr::SEvent& event) {
    if (isClickOf(event, element("bgeneral"))) {
        GeneralProcedureScreen(context_, general_).run();
        takeGlass();
    } else if (!onEntry(event))
        return;
    refresh();
}

bool CourseScreen::onNext() {
    const std::wstring trouble = take();
    if (!trouble.empty())
        tellInBox(context_, trouble);
    return trouble.empty();
}

} // namespace skyvane
