#pragma once

#include "displays/mapmath/elements/AirportSketchPlan.h"

namespace skyvane {

class AirspaceElement;
class AirwayElement;
class GroundGeometryElement;

/// Sketches of lines and areas: their shape, fitted into the picture, north up, over what a pilot asks of them.

/// The outline with its band, over class and limits.
SketchPlan planAirspaceSketch(const AirspaceElement& airspace, const SketchFrame& frame);
/// The segment with its direction, over name and altitudes.
SketchPlan planAirwaySketch(const AirwayElement& airway, const SketchFrame& frame);
/// The line or area in its colours, over its label.
SketchPlan planGroundSketch(const GroundGeometryElement& element, const SketchFrame& frame);

} // namespace skyvane
