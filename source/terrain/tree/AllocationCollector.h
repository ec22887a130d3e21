#pragma once

#include "core/log/Logger.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace skyvane {

/// Keeps arrays of N elements that were given back for the next who needs one, so that a job which loads and frees
/// whole tiles at a high rate allocates them only as often as its peak demands. Says each allocation on standard
/// output.
///
///     auto heights = collector.take();   // goes back by itself
///
/// Safe from every thread; outlives the arrays taken from it.
template <class T, size_t N>
class ArrayAllocationCollector {
public:
    struct GiveBack {
        ArrayAllocationCollector* collector;
        void operator()(T* array) const { collector->keep(array); }
    };
    using Array = std::unique_ptr<T[], GiveBack>;

    explicit ArrayAllocationCollector(std::string name) : name_(std::move(name)) {}
    ArrayAllocationCollector(const ArrayAllocationCollector&) = delete;
    ArrayAllocationCollector& operator=(const ArrayAllocationCollector&) = delete;

    /// Holds anything that its last user has left in it.
    Array take() {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (free_.empty()) {
            Logger::logStringConsole(name_ + " counter: " + std::to_string(++counter_));
            Logger::logStringConsole(name_ + " create Array");
            return Array(new T[N], GiveBack{this});
        }
        Array array(free_.back().release(), GiveBack{this});
        free_.pop_back();
        return array;
    }

    /// How many were ever allocated.
    size_t getCount() const {
        const std::lock_guard<std::mutex> lock(mutex_);
        return counter_;
    }

private:
    void keep(T* array) {
        const std::lock_guard<std::mutex> lock(mutex_);
        free_.emplace_back(array);
    }

    const std::string name_;
    mutable std::mutex mutex_; ///< Guards what follows. Leaf.
    std::vector<std::unique_ptr<T[]>> free_;
    size_t counter_ = 0;
};

} // namespace skyvane
