#pragma once

#include <cstddef>

namespace skyvane {

/// Counts what this thread takes from operator new while the counter lives. Link AllocationCounter.cpp, which replaces
/// the operators.
class AllocationCounter {
public:
    AllocationCounter();
    size_t count() const;

private:
    size_t start_;
};

} // namespace skyvane
