#pragma once

#include "displays/informationmath/SideScene.h"

namespace skyvane {

/// What the parts of a side view are drawn with. Keeps its memory.
struct SideTools {
    SideTools(BarCanvas& target, IWordMeasure& words) : canvas(target), pen(target), measure(words) {}

    BarCanvas& canvas;
    BarPen pen;
    IWordMeasure& measure;
    ShapePath path;
};

// What stands still until the scene changes.

/// The line of the ground, with its body where the terrain's picture is too coarse (a look ahead), and hatching where
/// nobody knows the terrain.
void addSideGround(SideTools& tools, const SideScene& scene);
/// The course with its points, that of succeeding procedures white: yellow where it comes near the ground, red where it
/// leads into it.
void addSideCourse(SideTools& tools, const SideScene& scene);
/// At the left edge, over the course.
void addAltitudeScale(SideTools& tools, const SideScene& scene);

// What moves with the aircraft.

/// At the lower edge: distances along the course from the aircraft on.
void addDistanceScale(SideTools& tools, const SideScene& scene);
/// The aircraft with its altitude, the way that it goes on as it flies now, and what is wrong with either.
void addSideFlight(SideTools& tools, const SideScene& scene);

/// Where the aircraft's middle is drawn, always within the picture; nothing while place or altitude aren't known.
std::optional<ShapePoint> placeSideAircraft(const SideScene& scene);
/// Fills in where the aircraft, its altitude and the notes are, in steps of some pixels: labels keep clear of them.
void blockForFlight(SideScene& scene, IWordMeasure& measure);

/// How far beside the course it counts as off course.
constexpr double offCourseMetres = 1852.0;
/// Closer to the ground the course is drawn yellow.
constexpr double lowMetres = 150.0;
/// The ground's heights are no more exact than that: an end on a runway doesn't lie in the ground.
constexpr double groundErrorMetres = 20.0;

} // namespace skyvane
