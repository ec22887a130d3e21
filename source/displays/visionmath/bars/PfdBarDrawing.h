#pragma once

namespace skyvane {

class BarPen;
struct PfdLayout;
struct PfdReadings;
struct VisionSettings;

/// What a bar needs to be put on a canvas.
struct BarScene {
    const PfdLayout& layout;
    const VisionSettings& settings;
    const PfdReadings& readings;
};

// Each bar with its title and what stands below it. A value that failed leaves a cross, and nothing that could be read.
void drawSpeedBar(BarPen& pen, const BarScene& scene);
void drawAltitudeBar(BarPen& pen, const BarScene& scene);
void drawVerticalSpeedBar(BarPen& pen, const BarScene& scene);
void drawTrackBar(BarPen& pen, const BarScene& scene);
/// Nothing without a sensor for it.
void drawAngleOfAttack(BarPen& pen, const BarScene& scene);
/// Name, distance and time of the next point of the plan; nothing without a plan.
void drawNextFix(BarPen& pen, const BarScene& scene);

/// All that the settings ask for.
void drawPfdBars(BarPen& pen, const BarScene& scene);

} // namespace skyvane
