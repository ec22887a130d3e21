#pragma once

#include "core/messages/MessageLevel.h"

#include <map>
#include <string>

namespace skyvane {

/// The messages that parts of the program keep up for the pilot, one per owner, until they end or are taken down.
///
///     board.set(this, "No GPS", MESSAGE_RED, -1, MilliSecs());
///     if (const auto* joined = board.collect(MilliSecs())) show(joined->text, joined->level);
///
/// Allocates only when a message changes. Not thread safe.
class MessageBoard {
public:
    struct Joined {
        std::string text;                   ///< The messages in the order of their owners, with line breaks between.
        MESSAGECOLOR level = MESSAGE_GREEN; ///< The largest of them.
    };

    /// Creates or replaces the owner's message and restarts its clock; a negative time-out means none. Nothing while
    /// messages aren't accepted.
    void set(const void* owner, const std::string& text, MESSAGECOLOR level, int timeoutMilliseconds,
             unsigned nowMilliseconds);
    void remove(const void* owner);
    void clear();
    bool isEmpty() const { return messages_.empty(); }

    void setAccepting(bool accepting) { accepting_ = accepting; }
    bool isAccepting() const { return accepting_; }

    /// Takes down what has timed out and joins the rest; null when nothing is left. Valid until the next call.
    const Joined* collect(unsigned nowMilliseconds);

private:
    struct MessageContent {
        std::string text;
        MESSAGECOLOR level;
        unsigned startMilliseconds;
        int timeoutMilliseconds;
    };

    std::map<const void*, MessageContent> messages_;
    Joined joined_;
    bool changed_ = false;
    bool accepting_ = true;
};

} // namespace skyvane
