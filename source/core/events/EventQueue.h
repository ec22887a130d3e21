#pragma once

#include <irrlicht.h>
#include <vector>

namespace skyvane {

/// First in, first out, with a capacity: an event that meets a full queue finds it emptied first.
/// A ring whose room is made once; nothing is allocated afterwards.
class EventQueue {
public:
    explicit EventQueue(unsigned capacity) : ring_(capacity > 0 ? capacity : 1) {}

    void push(const irr::SEvent& event) {
        if (count_ == ring_.size())
            count_ = 0;
        ring_[(first_ + count_++) % ring_.size()] = event;
    }
    bool empty() const { return count_ == 0; }
    size_t size() const { return count_; }
    /// The oldest; the queue must not be empty.
    const irr::SEvent& front() const { return ring_[first_]; }
    irr::SEvent pop() {
        const irr::SEvent event = ring_[first_];
        first_ = (first_ + 1) % ring_.size();
        --count_;
        return event;
    }

private:
    std::vector<irr::SEvent> ring_;
    size_t first_ = 0;
    size_t count_ = 0;
};

} // namespace skyvane
