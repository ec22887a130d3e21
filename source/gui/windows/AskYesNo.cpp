#include "gui/windows/AskYesNo.h"

#include "gui/windows/Questions.h"

namespace skyvane {

bool askYesNo(Context& context, const std::wstring& question) {
    return askInBox(context, question, L"Yes", L"No");
}

} // namespace skyvane
