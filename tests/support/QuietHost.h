#pragma once

#include "sensors/ISensorHost.h"

namespace skyvane {

/// A program around the sensors that shows nothing.
class QuietHost : public ISensorHost {
public:
    void pumpWindow() override {}
    void showMessageBox(const std::string&) override {}
    void setMessage(void*, const std::string&, MESSAGECOLOR, int) override {}
    void removeMessage(void*) override {}
    std::string getConfigPath() override { return {}; }
    void chooseProfile(IniFile&, const std::vector<std::unique_ptr<IConfigOverride>>&) override {}
};

} // namespace skyvane
