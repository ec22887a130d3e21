#pragma once

#include "procedures/highway/Highway.h"

#include <condition_variable>
#include <mutex>

namespace skyvane {

/// Builds the highway in the sky on a thread of its own, when there is another path, and when the aircraft has covered
/// half of what was built, or 5 km: farther from the centre of the mesh its local frame would show the rectangles
/// beside the path.
///
///     HighwayBuilder highway;
///     highway.start();
///     highway.setPath(list);                         // main thread, when it changes
///     if (highway.exchange({position, ...}, mesh))   // main thread, twice a second
///         ... mesh is a new one ...
///
/// A test calls runRound() instead of start().
class HighwayBuilder {
public:
    struct Aircraft {
        bool available = false; ///< Place and altitude are known, and a procedure is flown.
        ChartPosition position;
        double altitudeMetres = 0.0;
        HighwaySize size;
    };
    static constexpr double MostMovedMetres = 5000.0;

    HighwayBuilder() = default;
    /// Waits for the round that goes on.
    ~HighwayBuilder();
    HighwayBuilder(const HighwayBuilder&) = delete;
    HighwayBuilder& operator=(const HighwayBuilder&) = delete;

    /// Before start(): the form of the rectangles. One that has no triangles, or too many corners, isn't taken.
    void setShape(GateShape shape);
    /// False when there is no thread to be had.
    bool start();
    /// One round of the thread, without its sleep. False when the thread shall end.
    bool runRound();

    /// An empty path takes the highway away.
    void setPath(const CourseList& path);
    /// Tells where the aircraft is; true when the mesh was replaced by a new one. Its former memory goes round.
    bool exchange(const Aircraft& aircraft, HighwayMesh& mesh);

private:
    static void* procMain(void* self);
    bool isWorn(const Aircraft& aircraft) const;

    unsigned long thread_ = 0;
    bool started_ = false;

    // The thread's.
    GateShape shape_ = GateShape::flatFrame();
    std::vector<CourseElement> builtPath_;
    ChartPosition builtAt_;
    HighwaySize builtSize_;
    double coveredMetres_ = 0.0;
    bool isBuilt_ = false;
    HighwayMesh loading_; ///< The main thread's too, while it is new and under the lock.

    /// Guards what follows; held to copy and swap, never while rectangles are placed. Leaf.
    std::mutex mutexMessageAndPos_;
    std::condition_variable wake_;
    Aircraft aircraft_;
    std::vector<CourseElement> path_;
    bool newPath_ = false, updated_ = false, newMesh_ = false, exitRequest_ = false;
};

} // namespace skyvane
