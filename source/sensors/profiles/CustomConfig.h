#pragma once

#include "sensors/profiles/IConfigOverride.h"

namespace skyvane {

class ISensorDialogs;

/// What the pilot composes on the sensor setup screen.
class CustomConfig : public IConfigOverride {
public:
    /// The dialogs outlive the profile.
    explicit CustomConfig(ISensorDialogs* dialogs) : dialogs_(dialogs) {}
    std::wstring getName() override { return L"Custom"; }
    std::wstring getDescription() override;
    bool OnConfigChosen(IniFile* ini) override;

private:
    ISensorDialogs* dialogs_;
};

} // namespace skyvane
