#pragma once

#include "core/events/EventReceiver.h"

namespace skyvane {

/// The button that the back key clicks while a dialog is open; afterwards the key belongs to whom it belonged before.
/// The key's click reaches only the queue of events. Main thread only.
class BackButton {
public:
    /// The receiver outlives this; null as button leaves the key without one.
    BackButton(EventReceiver* events, irr::gui::IGUIElement* button)
        : events_(events), former_(events->getBackButton()) {
        events_->setBackButton(button);
    }
    ~BackButton() { events_->setBackButton(former_); }
    BackButton(const BackButton&) = delete;
    BackButton& operator=(const BackButton&) = delete;

private:
    EventReceiver* events_;
    irr::gui::IGUIElement* former_; ///< Only handed back.
};

} // namespace skyvane
