#include "gui/menu/SavedFPLCbk.h"

#include "core/Context.h"
#include "gui/windows/Questions.h"
#include "procedures/ProcedureManager.h"

namespace skyvane {
namespace {

constexpr const char* plansFile = "data/fpl.ini";
constexpr const char* exchangeFile = "Logs/fpl.ini"; ///< Where the pilot finds it beside his flights.

} // namespace

bool SavedFPLCbk::OnResult(LoadSaveSettingsDialog* dialog, IniFile* document, const std::string& section) {
    return dialog->isSaving() ? save(*document, section) : load(section);
}

bool SavedFPLCbk::save(IniFile& document, const std::string& section) {
    if (context_.getProcedureManager()->getProcedureCount() > 0) {
        context_.getProcedureManager()->insertFlightPlan(document, section);
        return true;
    }
    tellInBox(context_, L"The flight plan has no procedures yet.");
    return false;
}

bool SavedFPLCbk::load(const std::string& section) {
    ProcedureManager* procedures = context_.getProcedureManager();
    const bool isLoaded = procedures->retrieveFlightPlan(section);
    const std::size_t losses = procedures->getLosses().size();
    if (!isLoaded)
        tellInBox(context_, L"Nothing of this plan can be flown.\nThe former plan stays.");
    else if (losses > 0)
        tellInBox(context_,
                  losses == 1 ? std::wstring(L"FLIGHT PLAN INCOMPLETE:\na procedure can't be flown")
                              : L"FLIGHT PLAN INCOMPLETE:\n" + std::to_wstring(losses) + L" procedures can't be flown");
    return isLoaded;
}

void showSavedFlightPlans(Context& context) {
    SavedFPLCbk callback(context);
    LoadSaveSettingsDialog::Options options;
    options.title = L"Saved Flight Plans";
    options.path = context.getPath(plansFile);
    options.exchangePath = context.getPath(exchangeFile);
    LoadSaveSettingsDialog(&callback, &context, &context.getProcedureManager()->getSavedFlightPlans(), options).run();
}

} // namespace skyvane
