#pragma once

#include "sensors/NoSetupGUISensorFactory.h"

namespace skyvane {

class ISensorDialogs;

/// Makes the sensor that reads a receiver on a serial port. It isn't offered in the program's lists: there the
/// receiver is read for the attitude estimator.
class ComGPSReceiverFactory : public NoSetupGUISensorFactory {
public:
    /// The dialogs outlive the factory.
    explicit ComGPSReceiverFactory(ISensorDialogs* dialogs);

    /// Numbers that can't be are replaced by their defaults.
    void loadSetupFromIni(IniFile* ini, std::string section) override;
    bool setup(IniFile* ini, std::string section) override;
    std::unique_ptr<ISensor> Create() override;

private:
    ISensorDialogs* dialogs_;
    std::string device_;
    int bufferSize_;
    int timeoutMs_;
    int baudRate_;
};

} // namespace skyvane
