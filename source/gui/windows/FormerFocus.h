#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>

namespace skyvane {

/// What had the focus of the keyboard when a dialog opened above it, to have it again afterwards: the edit box that a
/// pilot was typing in, the button of a box beneath. Made before the dialog takes the focus. Main thread only.
class FormerFocus {
public:
    explicit FormerFocus(irr::gui::IGUIEnvironment* environment)
        : environment_(environment), element_(EngineRef<irr::gui::IGUIElement>::share(environment->getFocus())) {}

    /// Nothing has the focus when the element is gone or hidden by now. What had it in between is out of the tree, or
    /// hidden, already.
    void restore() {
        environment_->setFocus(nullptr);
        if (element_.get() && isOnScreen(element_.get()))
            environment_->setFocus(element_.get());
        element_ = {};
    }

private:
    bool isOnScreen(const irr::gui::IGUIElement* element) const {
        const irr::gui::IGUIElement* top = element;
        for (; top->getParent(); top = top->getParent())
            if (!top->isVisible())
                return false;
        return top == environment_->getRootGUIElement();
    }

    irr::gui::IGUIEnvironment* environment_;
    EngineRef<irr::gui::IGUIElement> element_;
};

} // namespace skyvane
