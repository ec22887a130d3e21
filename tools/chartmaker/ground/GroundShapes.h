#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <cstddef>
#include <vector>

namespace skyvane {

using GroundLine = std::vector<ChartPosition>;

/// Rings without their closing points.
struct GroundPolygon {
    GroundLine outline;
    std::vector<GroundLine> holes;
};

/// A box in degrees, west below east, both -180 to 180.
struct GroundBox {
    double west = -180.0;
    double south = -90.0;
    double east = 180.0;
    double north = 90.0;
};

/// No polygon has more points.
constexpr size_t MaxPolygonPoints = 2000;
/// No polygon is wider or higher, in degrees: the size of a leaf of the area tree. So none of its leaves lies inside,
/// where the tree would miss it.
constexpr double MaxPolygonDegrees = 0.5;

// What cuts or mends a shape clears `isWhole` when a part of it is lost: geometry that a library gives up on. What has
// no area, or lies outside, isn't lost.

/// A line with fewer points: every point of the old one is within `toleranceMetres` of the new one (Douglas and
/// Peucker). The ends stay. A closed line stays closed.
GroundLine simplifyLine(const GroundLine& line, double toleranceMetres);

/// The same for a polygon, keeping its rings apart. Empty when nothing can be made of it: fewer than three places, or
/// no area even after its crossings were put right.
std::vector<GroundPolygon> simplifyPolygon(const GroundPolygon& polygon, double toleranceMetres, bool& isWhole);

/// What of a line or polygon lies in any of the boxes.
std::vector<GroundLine> clipLine(const GroundLine& line, const std::vector<GroundBox>& boxes, bool& isWhole);
std::vector<GroundPolygon> clipPolygon(const GroundPolygon& polygon, const std::vector<GroundBox>& boxes,
                                       bool& isWhole);

/// Rings that together cover the polygon: none has a hole, more than MaxPolygonPoints, or a side above
/// MaxPolygonDegrees.
std::vector<GroundLine> splitPolygon(const GroundPolygon& polygon, bool& isWhole);

/// The pieces of a line of at most `points` points each; neighbours share a point.
std::vector<GroundLine> splitLine(const GroundLine& line, size_t points);

/// Joins lines that meet at an end, where no third one does; each result keeps the order of its parts' points, turned
/// round where needed.
std::vector<GroundLine> joinLines(std::vector<GroundLine> lines);

/// The lines without the segments, in either direction, that stand in others or earlier in them.
std::vector<GroundLine> leaveOutRepeated(const std::vector<GroundLine>& lines, const std::vector<GroundLine>& others);

} // namespace skyvane
