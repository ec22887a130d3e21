#pragma once

#include <deque>
#include <irrlicht.h>

namespace skyvane {

/// First in, first out, with a capacity: an event that meets a full queue finds it emptied first.
class EventQueue {
public:
    explicit EventQueue(unsigned capacity) : capacity_(capacity) {}

    void push(const irr::SEvent& event) {
        if (events_.size() >= capacity_)
            events_.clear();
        events_.push_back(event);
    }
    bool empty() const { return events_.empty(); }
    size_t size() const { return events_.size(); }
    const irr::SEvent& front() const { return events_.front(); }
    irr::SEvent pop() {
        const irr::SEvent event = events_.front();
        events_.pop_front();
        return event;
    }

private:
    size_t capacity_;
    std::deque<irr::SEvent> events_;
};

} // namespace skyvane
