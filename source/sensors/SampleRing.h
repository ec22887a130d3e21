#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace skyvane {

/// A queue that reuses its storage: it grows by doubling and never gives back. Index 0 is the oldest element.
template <class T>
class SampleRing {
public:
    /// Makes room, so that so many elements need no more memory.
    void reserve(size_t count) {
        if (count > storage_.size())
            grow(count);
    }
    int count() const { return static_cast<int>(count_); }
    bool empty() const { return count_ == 0; }

    const T& operator[](int index) const { return storage_[place(static_cast<size_t>(index))]; }
    /// The newest but `age`; the ring holds more than that.
    const T& newest(int age = 0) const { return (*this)[count() - 1 - age]; }

    void push(const T& element) {
        if (count_ == storage_.size())
            grow(storage_.empty() ? 16 : 2 * storage_.size());
        storage_[place(count_)] = element;
        ++count_;
    }
    /// The ring isn't empty.
    void popNewest() { --count_; }
    void popOldest() {
        first_ = place(1);
        --count_;
    }

private:
    size_t place(size_t index) const {
        const size_t position = first_ + index;
        return position < storage_.size() ? position : position - storage_.size();
    }
    void grow(size_t capacity) {
        std::vector<T> larger(capacity);
        for (size_t i = 0; i < count_; ++i)
            larger[i] = storage_[place(i)];
        storage_ = std::move(larger);
        first_ = 0;
    }

    std::vector<T> storage_;
    size_t first_ = 0;
    size_t count_ = 0;
};

} // namespace skyvane
