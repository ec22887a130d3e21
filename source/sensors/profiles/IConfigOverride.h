#pragma once

#include <string>

namespace irr::video {
class ITexture;
}

namespace skyvane {

class IniFile;

/// A sensor profile: writes the sensors of a common set-up, and which of them gives what, into the configuration
/// document. The pilot chooses one at the start. Main thread only; no state between two choices.
class IConfigOverride {
public:
    virtual std::wstring getName() = 0;
    /// Null for none; the driver holds it.
    virtual irr::video::ITexture* getIcon() { return nullptr; }
    virtual std::string getWebsiteURL() { return {}; }
    virtual bool isApplicableWebsiteURL() { return false; }
    virtual std::wstring getWebsiteButtonLabel() { return L"Website"; }
    virtual std::wstring getDescription() { return L"No description available."; }
    /// Asks what it needs to know. False when the pilot gave up or something is missing, of which he was told; the
    /// document is as it was then.
    virtual bool OnConfigChosen(IniFile*) { return true; }
    virtual ~IConfigOverride() = default;
    /// Why it can't be chosen in this version of the program; empty when it can.
    virtual std::wstring getObstacle() { return {}; }
};

} // namespace skyvane
