#pragma once

namespace skyvane {

/// How many threads a terrain job may have: as many as keep the processor busy, if their tiles fit the memory. Counts
/// of 0 or less mean that the calling thread does it all.
struct ThreadBudget {
    int cpuMaxThreads;
    int maxThreadCount;     ///< For the levels.
    int maxSyncThreadCount; ///< For the edges, where a thread holds its tile and one neighbour's.
};

ThreadBudget calcThreadBudget(unsigned long systemMemoryBytes, unsigned cpuCoreCount);

} // namespace skyvane
