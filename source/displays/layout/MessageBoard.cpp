#include "displays/layout/MessageBoard.h"

#include "core/time/Time.h"

#include <algorithm>

namespace skyvane {

void MessageBoard::set(const void* owner, const std::string& text, MESSAGECOLOR level, int timeoutMilliseconds,
                       unsigned nowMilliseconds) {
    if (!accepting_)
        return;
    MessageContent& message = messages_[owner];
    message.text = text;
    message.level = level;
    message.startMilliseconds = nowMilliseconds;
    message.timeoutMilliseconds = timeoutMilliseconds;
    changed_ = true;
}

void MessageBoard::remove(const void* owner) {
    changed_ = messages_.erase(owner) > 0 || changed_;
}

void MessageBoard::clear() {
    messages_.clear();
    changed_ = true;
}

const MessageBoard::Joined* MessageBoard::collect(unsigned nowMilliseconds) {
    for (auto it = messages_.begin(); it != messages_.end();) {
        const MessageContent& message = it->second;
        const bool over = message.timeoutMilliseconds >= 0 && TimeDiff(nowMilliseconds, message.startMilliseconds) >
                                                                  static_cast<unsigned>(message.timeoutMilliseconds);
        changed_ = changed_ || over;
        it = over ? messages_.erase(it) : std::next(it);
    }
    if (messages_.empty())
        return nullptr;
    if (changed_) {
        joined_.text.clear();
        joined_.level = MESSAGE_GREEN;
        for (const auto& entry : messages_) {
            if (entry.first != messages_.begin()->first)
                joined_.text += '\n';
            joined_.text += entry.second.text;
            joined_.level = std::max(joined_.level, entry.second.level);
        }
        changed_ = false;
    }
    return &joined_;
}

} // namespace skyvane
