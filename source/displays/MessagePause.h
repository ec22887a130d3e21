#pragma once

#include "displays/PanelManager.h"

namespace skyvane {

/// Keeps new messages off the screen while a window takes text, and brings the former state back. Main thread only.
class MessagePause {
public:
    /// The manager outlives the pause.
    explicit MessagePause(PanelManager& panels) : panels_(panels), wasAccepting_(panels.isAcceptMessagesEnabled()) {
        panels_.setAcceptMessagesEnabled(false);
    }
    ~MessagePause() { panels_.setAcceptMessagesEnabled(wasAccepting_); }
    MessagePause(const MessagePause&) = delete;
    MessagePause& operator=(const MessagePause&) = delete;

private:
    PanelManager& panels_;
    bool wasAccepting_;
};

} // namespace skyvane
