#pragma once

#include "core/messages/MessageLevel.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class IConfigOverride;
class IniFile;

/// What sensors and their manager need of the program around them. `Context` is one; tests bring their own.
/// Main thread only.
class ISensorHost {
public:
    virtual ~ISensorHost() = default;
    /// Keeps the window alive in long work: one turn of the engine's event pump.
    virtual void pumpWindow() = 0;
    /// Shows a box with "Ok" and returns at once; the frame goes on behind it.
    virtual void showMessageBox(const std::string& text) = 0;
    /// A message on the displays; a later one of the same owner replaces it. A negative time-out means none.
    virtual void setMessage(void* owner, const std::string& text, MESSAGECOLOR level, int timeoutMilliseconds) = 0;
    virtual void removeMessage(void* owner) = 0;
    /// Where the configuration document lies.
    virtual std::string getConfigPath() = 0;
    /// Lets the user choose one of the profiles, which changes the document, and saves it then.
    virtual void chooseProfile(IniFile& document, const std::vector<std::unique_ptr<IConfigOverride>>& profiles) = 0;
};

} // namespace skyvane
