#pragma once

#include "sensors/ISensorDialogs.h"

namespace skyvane {

class Context;
class WifiControl;

/// Asks the user on the screen what sensors and forwarders want to know.
class SensorDialogs : public ISensorDialogs {
public:
    /// Both outlive the dialogs.
    SensorDialogs(Context* context, WifiControl* wifi) : context_(context), wifi_(wifi) {}

    bool edit(const std::string& title, const std::wstring& schema, const char* helpFile, IniFile& document) override;
    bool askText(const std::string& question, std::string& text) override;
    bool confirm(const std::string& question) override;
    void tell(const std::string& text) override;
    int choose(const std::string& question, const std::vector<std::string>& labels) override;
    bool chooseBluetoothDevice() override;
    bool selectSensors(IniFile& document) override;
    void offerNetwork() override;

private:
    Context* context_;
    WifiControl* wifi_;
};

} // namespace skyvane
