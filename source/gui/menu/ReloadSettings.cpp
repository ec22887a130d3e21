#include "gui/menu/ReloadSettings.h"

#include "core/Context.h"
#include "core/engine/ShowState.h"
#include "core/ini/IniFile.h"
#include "core/system/SystemManager.h"
#include "displays/PanelManager.h"
#include "gui/input/InputSystem.h"
#include "gui/windows/AskYesNo.h"
#include "sensors/SensorManager.h"
#include "sensors/profiles/ProfileQuestion.h"

namespace skyvane {
namespace {

const wchar_t* const waitText = L"Please wait...";

} // namespace

bool saveConfig(Context& context, const IniFile& config) {
    const std::string path = context.getConfigPath();
    if (config.Save(path))
        return true;
    context.showMessageBox("The settings could not be saved to " + path);
    return false;
}

void reloadPanels(Context& context, IniFile& config) {
    showState(context.getIrrlichtDevice(), waitText);
    context.getPanelManager()->unload();
    context.getPanelManager()->loadPanelSettingsFromIni(&config, nullptr, false, true);
}

void restoreStandardConfig(Context& context) {
    if (!askYesNo(context, L"Do you really want to restore the standard configuration?"))
        return;
    showState(context.getIrrlichtDevice(), waitText);
    if (!context.getSystemManager()->writeStandardConfig())
        return context.showMessageBox("The standard configuration could not be written to " + context.getConfigPath());
    IniFile config(context.getConfigPath());
    context.getPanelManager()->unload();
    context.getInputSystem()->loadInputSettingsFromIni(&config);
    context.getSensorManager()->unload();
    context.getSensorManager()->loadSensorSettingsFromIni(&config, asksForProfile(config));
    context.getPanelManager()->loadPanelSettingsFromIni(&config, nullptr, true, true);
}

} // namespace skyvane
