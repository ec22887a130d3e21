#include "gui/menu/GeneralSetup.h"

#include "core/Context.h"
#include "core/engine/IniAssets.h"
#include "core/files/StandardDocuments.h"
#include "core/ini/IniFile.h"
#include "core/ini/IniIterator.h"
#include "core/ini/ReadValue.h"
#include "core/system/SystemManager.h"
#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "displays/MessagePause.h"
#include "displays/PanelManager.h"
#include "displays/gauges/PanelOptions.h"
#include "gui/input/InputSystem.h"
#include "gui/layout/EditorSchema.h"
#include "gui/menu/Menu.h"
#include "gui/menu/MenuLayouts.h"
#include "gui/menu/ReloadSettings.h"
#include "gui/windows/IniEditor.h"
#include "sensors/SensorManager.h"

namespace skyvane {
namespace {

const char* const fontsMark = "%FONTS%";

/// Keys that the document lacks get the standard document's value, which isn't always the first of the choices.
void addStandardValues(IniFile& config, const std::vector<EditorRow>& rows) {
    IniFile standard;
    standard.setFromString(standardConfigINI);
    for (const EditorRow& row : rows) {
        const std::string key = encodeUtf8(row.key);
        if (!config.isAvailable("", key) && standard.isAvailable("", key))
            config.set("", key, standard.get("", key));
    }
}

void applyScreenMode(Context& context, const std::string& mode) {
    context.getSystemManager()->setScreenModePreference(mode == "Landscape"  ? SystemManager::ScreenModeLandscape
                                                        : mode == "Portrait" ? SystemManager::ScreenModePortrait
                                                                             : SystemManager::ScreenModeAuto);
    context.showMessageBox("Please restart Skyvane to apply the screen orientation changes.");
}

} // namespace

std::wstring generalSetupSchemaFor(const IniFile& fontList) {
    std::string fonts;
    for (auto it = fontList.newIterator(); it->isSectionAvail(); it->nextSection()) {
        if (!fonts.empty())
            fonts += "\\;";
        for (const char letter : it->currentSection()) {
            if (letter == ',' || letter == '\\')
                fonts += '\\';
            fonts += letter;
        }
    }
    std::string schema = generalSetupSchema;
    schema.replace(schema.find(fontsMark), std::string(fontsMark).size(), fonts);
    return decodeUtf8(schema);
}

void runGeneralSetup(Context& context) {
    const MessagePause pause(*context.getPanelManager());
    IniFile config(context.getConfigPath());
    const std::wstring schema =
        generalSetupSchemaFor(readIniWithAssetSupport(context.getSystemManager(), "media/sdff/fonts.ini"));
    const std::vector<EditorRow> rows = parseEditorSchema(schema);
    addStandardValues(config, rows);
    IniFile options = readPanelOptions(rows, config, "");
    const std::string formerMode = readValue(config, "", "screenMode");
    Menu* menu = context.getPanelManager()->getMenu();
    menu->setEnabled(false);
    const bool accepted = IniEditor(&context, "General Setup", schema, "GeneralSetup.hti").run(&options);
    menu->setEnabled(true);
    if (!accepted)
        return;
    writePanelOptions(rows, options, config, "");
    if (!saveConfig(context, config))
        return;
    context.getSensorManager()->setShowPopups(toBool(readValue(config, "", "showPopups")));
    context.getInputSystem()->loadInputSettingsFromIni(&config);
    reloadPanels(context, config);
    const std::string mode = readValue(config, "", "screenMode");
    if (mode != (formerMode.empty() ? "Auto" : formerMode))
        applyScreenMode(context, mode);
}

} // namespace skyvane
