#pragma once

#include "chart/elements/IChartElement.h"

namespace skyvane {

/// What is fixed about a kind of element.
struct ElementKind {
    IChartElement::Type type;
    const char* descriptor; ///< Under "Type" in documents.
    const char* name;       ///< For people.
};

/// By type value, AIRSPACE to GROUNDGEOMETRY.
inline constexpr ElementKind elementKinds[IChartElement::TypeCount] = {
    {IChartElement::AIRSPACE, "AIRSPACE", "Airspace"},
    {IChartElement::AIRWAY, "AIRWAY_SEGMENT", "Airway"},
    {IChartElement::OBSTRUCTION, "OBSTRUCTION", "Obstruction"},
    {IChartElement::WAYPOINT, "WAYPOINT", "Waypoint"},
    {IChartElement::MARK, "MARK", "Mark"},
    {IChartElement::NDB, "NDB", "NDB"},
    {IChartElement::VOR, "VOR", "VOR"},
    {IChartElement::AIRPORT, "AIRPORT", "Airport"},
    {IChartElement::GROUNDGEOMETRY, "GROUNDGEOMETRY", "GroundGeometry"},
};

} // namespace skyvane
