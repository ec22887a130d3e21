#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <array>
#include <memory>
#include <utility>

namespace skyvane {

/// The newest message of each type with the time of its arrival. Times are of Secs().
class GDL90MessageStore {
public:
    /// Gives the message that was there before back, or null.
    std::unique_ptr<IGDL90Message> put(std::unique_ptr<IGDL90Message> message, double now) {
        Entry& entry = entries_[static_cast<size_t>(message->getType())];
        entry.arrival = now;
        std::swap(entry.message, message);
        return message;
    }
    /// The message when it is younger than two seconds, otherwise null.
    const IGDL90Message* getMsgIfValid(IGDL90Message::Type type, double now) const {
        const Entry& entry = entries_[static_cast<size_t>(type)];
        return entry.message && now - entry.arrival < ValidSeconds ? entry.message.get() : nullptr;
    }
    /// When the newest message of the type came.
    double arrival(IGDL90Message::Type type) const { return entries_[static_cast<size_t>(type)].arrival; }

private:
    static constexpr double ValidSeconds = 2.0;

    struct Entry {
        std::unique_ptr<IGDL90Message> message;
        double arrival = 0.0;
    };
    std::array<Entry, IGDL90Message::TypeCount> entries_;
};

} // namespace skyvane
