#pragma once

#include "gui/windows/LoadSaveSettingsDialog.h"

namespace skyvane {

/// Saves the flight plan under the name that the pilot enters, or makes the one that he has chosen the plan. Main
/// thread only.
class SavedFPLCbk : public ILoadSaveSettingsCallback {
public:
    /// The context outlives it.
    explicit SavedFPLCbk(Context& context) : context_(context) {}
    bool OnResult(LoadSaveSettingsDialog* dialog, IniFile* document, const std::string& section) override;

private:
    bool save(IniFile& document, const std::string& section);
    bool load(const std::string& section);

    Context& context_;
};

/// The screen of the saved plans, until the pilot is done.
void showSavedFlightPlans(Context& context);

} // namespace skyvane
