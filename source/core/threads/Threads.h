#pragma once

namespace skyvane {

using ThreadFunction = void* (*)(void*);

/// Starts a POSIX thread, detached unless joinable. A positive stack size (bytes) is kept to, at least the system's
/// smallest; otherwise the system's own. False when no thread could be made; the handle is then unchanged.
bool createThread(unsigned long& handle, ThreadFunction function, void* argument, bool joinable, int stackSize);

} // namespace skyvane
