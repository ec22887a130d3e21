#include "gui/sensors/WifiControl.h"

#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "core/log/Logger.h"
#include "core/text/Utf8.h"
#include "gui/sensors/ChooseOne.h"
#include "gui/windows/IniEditor.h"
#include "gui/windows/Questions.h"
#include "sensors/transport/queryIPv4BroadcastAdresses.h"

#include <cstdlib>

namespace skyvane {
namespace {

constexpr wchar_t HotspotSchema[] = L"SSID,Hotspot name (SSID):,,STRING;Key,Key (8 characters or more):,,STRING;";
constexpr size_t ShortestKey = 8;
/// The settings of the usual desktops, the first that is there.
constexpr char SettingsCommand[] =
    "(gnome-control-center wifi || systemsettings kcm_networkmanagement || nm-connection-editor) >/dev/null 2>&1 &";

} // namespace

bool WifiControl::setWPAHotspot(const std::string&, const std::string&) {
    return isHotspotSupported();
}

bool WifiControl::isWifiConnected() const {
    return !queryIPv4BroadcastAdresses(0).empty();
}

void WifiControl::gotoWifiSettings() {
    if (std::system(SettingsCommand) != 0)
        logText("The network settings can't be opened.\n");
}

void WifiControl::setup(Context* context) {
    const int choice = chooseOne(*context, {L"Create a hotspot", L"Connect to an existing hotspot", L"Cancel"},
                                 L"A network connection is required.");
    if (choice == 0)
        createHotspot(context);
    else if (choice == 1)
        gotoWifiSettings();
}

void WifiControl::createHotspot(Context* context) {
    const std::string path = context->getPath("data/hotspot.ini");
    IniFile settings(path);
    while (IniEditor(context, "Create a hotspot", HotspotSchema, "Forwarding.hti").run(&settings)) {
        if (decodeUtf8(settings.get("", "Key")).size() < ShortestKey) {
            tellInBox(*context, L"Error: Key length too short. (Minimum: 8 characters)");
            continue;
        }
        if (!settings.Save(path))
            logText(path + " can't be written.\n");
        if (setWPAHotspot(settings.get("", "SSID"), settings.get("", "Key")))
            return;
        tellInBox(*context, L"Skyvane can't switch a hotspot on by itself here.\n"
                            L"Please do it in the system's network settings, with this name and key.");
        return gotoWifiSettings();
    }
}

} // namespace skyvane
