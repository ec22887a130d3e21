#include "core/threads/Threads.h"

#include <algorithm>
#include <climits>
#include <pthread.h>
#include <type_traits>

namespace skyvane {

static_assert(std::is_same<pthread_t, unsigned long>::value, "handles are POSIX threads");

bool createThread(unsigned long& handle, ThreadFunction function, void* argument, bool joinable, int stackSize) {
    pthread_attr_t attributes;
    if (pthread_attr_init(&attributes) != 0)
        return false;
    pthread_attr_setdetachstate(&attributes, joinable ? PTHREAD_CREATE_JOINABLE : PTHREAD_CREATE_DETACHED);
    if (stackSize > 0)
        pthread_attr_setstacksize(
            &attributes, std::max<size_t>(static_cast<size_t>(stackSize), static_cast<size_t>(PTHREAD_STACK_MIN)));
    pthread_t thread;
    const bool made = pthread_create(&thread, &attributes, function, argument) == 0;
    pthread_attr_destroy(&attributes);
    if (made)
        handle = thread;
    return made;
}

} // namespace skyvane
