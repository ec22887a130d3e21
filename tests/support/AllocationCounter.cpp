#include "support/AllocationCounter.h"

#include <cstdlib>
#include <new>

namespace {

thread_local size_t allocations = 0;

void* allocate(size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size ? size : 1))
        return memory;
    throw std::bad_alloc();
}

} // namespace

void* operator new(size_t size) {
    return allocate(size);
}

void* operator new[](size_t size) {
    return allocate(size);
}

void* operator new(size_t size, const std::nothrow_t&) noexcept {
    ++allocations;
    return std::malloc(size ? size : 1);
}

void* operator new[](size_t size, const std::nothrow_t&) noexcept {
    ++allocations;
    return std::malloc(size ? size : 1);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete[](void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, size_t) noexcept {
    std::free(memory);
}

void operator delete[](void* memory, size_t) noexcept {
    std::free(memory);
}

namespace skyvane {

AllocationCounter::AllocationCounter() : start_(allocations) {}

size_t AllocationCounter::count() const {
    return allocations - start_;
}

} // namespace skyvane
