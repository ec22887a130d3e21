#pragma once

#include <cstddef>
#include <cstdlib>
#include <new>
#include <sys/mman.h>

namespace skyvane {

/// Puts long lists into the kernel's large pages, where it grants them: touching thousands of small ones takes longer
/// than filling them.
template <class T>
struct LargePageAllocator {
    using value_type = T;

    LargePageAllocator() = default;
    template <class U>
    LargePageAllocator(const LargePageAllocator<U>&) {}

    T* allocate(size_t count) {
        const size_t bytes = (count * sizeof(T) + LargePage - 1) / LargePage * LargePage;
        if (count * sizeof(T) < LargePage)
            return static_cast<T*>(::operator new(count * sizeof(T)));
        void* list = std::aligned_alloc(LargePage, bytes);
        if (!list)
            throw std::bad_alloc();
        madvise(list, bytes, MADV_HUGEPAGE);
        return static_cast<T*>(list);
    }
    void deallocate(T* list, size_t count) {
        if (count * sizeof(T) < LargePage)
            ::operator delete(list);
        else
            std::free(list);
    }
    template <class U>
    bool operator==(const LargePageAllocator<U>&) const {
        return true;
    }
    template <class U>
    bool operator!=(const LargePageAllocator<U>&) const {
        return false;
    }

private:
    static constexpr size_t LargePage = 2 << 20;
};

} // namespace skyvane
