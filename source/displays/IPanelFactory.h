#pragma once

#include "displays/IPanel.h"

#include <irrlicht.h>
#include <memory>
#include <string>

namespace skyvane {

class IniFile;

/// Makes panels of one kind and holds the settings of the next one. Its place in the list is a stored format.
class IPanelFactory {
public:
    virtual void loadSetupFromIni(IniFile* ini, std::string section) = 0;
    /// Shows the panel's options and writes them to the section; false on cancel.
    virtual bool setup(IniFile* ini, std::string section) = 0;
    /// Whether setup() has anything to ask.
    virtual bool hasOptions() const { return true; }
    /// A panel with the loaded settings that knows this factory.
    virtual std::unique_ptr<IPanel> Create() = 0;
    virtual std::string getName() = 0;
    virtual void renderPreview(irr::core::rect<int> rect) {}
    virtual ~IPanelFactory() = default;
};

} // namespace skyvane
