#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>
#include <map>
#include <string>

namespace skyvane {

/// One element of a window together with what its layout says beyond the engine: the visibility group and the default.
/// Main thread only.
class ExtendedGUIElement {
public:
    /// Tells a partner of a radio group to give way.
    static constexpr int UncheckMessage = 666;

    using Elements = std::map<std::string, ExtendedGUIElement*>;

    /// Shares the engine's element, which lives on without its window until this goes.
    ExtendedGUIElement(irr::gui::IGUIElement* element, int domain, std::string defaultText)
        : element_(EngineRef<irr::gui::IGUIElement>::share(element)), domain_(domain),
          defaultText_(std::move(defaultText)) {}
    virtual ~ExtendedGUIElement() = default;

    virtual void setDefaults() {}
    virtual void OnEvent(const irr::SEvent::SGUIEvent&) {}
    /// All elements of the window stand.
    virtual void OnFinish(Elements&) {}
    virtual void sendIntMessage(ExtendedGUIElement*, int) {}

    irr::gui::IGUIElement* getElement() const { return element_.get(); }
    int getDomain() const { return domain_; }
    const std::string& getDefaultText() const { return defaultText_; }

private:
    EngineRef<irr::gui::IGUIElement> element_;
    int domain_;
    std::string defaultText_;
};

} // namespace skyvane
