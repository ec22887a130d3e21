#include "gui/sensors/SensorDialogs.h"

#include "core/text/Utf8.h"
#include "gui/sensors/BluetoothChoice.h"
#include "gui/sensors/ChooseOne.h"
#include "gui/sensors/WifiControl.h"
#include "gui/windows/IniEditor.h"
#include "gui/windows/Questions.h"
#include "sensors/setup/SensorSetup.h"

namespace skyvane {

bool SensorDialogs::edit(const std::string& title, const std::wstring& schema, const char* helpFile,
                         IniFile& document) {
    return IniEditor(context_, title, schema, helpFile).run(&document);
}

bool SensorDialogs::askText(const std::string& question, std::string& text) {
    // The first line is the question, what follows explains it.
    const std::wstring lines = decodeUtf8(question);
    const size_t end = lines.find(L'\n');
    const std::wstring explanation = end == std::wstring::npos ? std::wstring() : lines.substr(end + 1);
    const auto answer = askForText(*context_, lines.substr(0, end), explanation, decodeUtf8(text));
    if (answer)
        text = encodeUtf8(*answer);
    return answer.has_value();
}

bool SensorDialogs::confirm(const std::string& question) {
    return askInBox(*context_, decodeUtf8(question), L"Yes", L"No");
}

void SensorDialogs::tell(const std::string& text) {
    tellInBox(*context_, decodeUtf8(text));
}

int SensorDialogs::choose(const std::string& question, const std::vector<std::string>& labels) {
    std::vector<std::wstring> buttons;
    for (const std::string& label : labels)
        buttons.push_back(decodeUtf8(label));
    return chooseOne(*context_, buttons, decodeUtf8(question));
}

bool SensorDialogs::chooseBluetoothDevice() {
    return BluetoothChoice(context_).run();
}

bool SensorDialogs::selectSensors(IniFile& document) {
    return SensorSetup(context_).run(&document);
}

void SensorDialogs::offerNetwork() {
    if (!wifi_->isWifiConnected())
        wifi_->setup(context_);
}

} // namespace skyvane
