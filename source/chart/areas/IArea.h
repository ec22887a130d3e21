#pragma once

#include "chart/geodesy/ChartPosition.h"

#include <cstdint>

namespace skyvane {

class AreaLeaf;
class AreaNode;

/// One cell of the fixed partition of the earth: a node with further cells, or a leaf of half a degree with the
/// elements that touch it. Longitudes run from 0 to 360.
class IArea {
public:
    /// The kinds of background images, named by the numbers of areas.
    enum BgType : int32_t { VFR = 0, IFR_LOW = 1, IFR_HIGH = 2 };

    /// With a tolerance of 0.0001 degrees: what lies on an edge lies in both neighbours. The position's longitude is
    /// 0 to 360.
    virtual bool isInside(const ChartPosition& position) const;
    virtual bool isLeaf() const = 0;
    virtual const ChartPosition& getNWEdge() const { return nw_; }
    virtual const ChartPosition& getSEEdge() const { return se_; }
    /// To standard output, for developers.
    virtual void Print() const;
    /// -1 for the root.
    virtual int getParentIndex() const { return parentIndex_; }
    virtual ~IArea() = default;

    /// Whether a rectangle, going east from its west edge, and the area have more in common than an edge. For every
    /// width, also across longitude 0; a rectangle without width or height overlaps where it lies inside.
    bool Overlap(const ChartPosition& nw, const ChartPosition& se) const;

    /// |span of longitude x span of latitude|, in square degrees.
    double getSquareDegrees() const;

    /// This area as what it is, null when it is the other. AreaNode.h and AreaLeaf.h bring them.
    inline const AreaNode* asNode() const;
    inline const AreaLeaf* asLeaf() const;
    inline AreaLeaf* asLeaf();

protected:
    enum class Kind : uint8_t { Node, Leaf };

    IArea(Kind kind, const ChartPosition& nw, const ChartPosition& se, int parentIndex)
        : nw_(nw), se_(se), parentIndex_(parentIndex), kind_(kind) {}

private:
    bool overlapsLongitudes(double west, double east) const;
    bool overlapsLatitudes(double north, double south) const;

    ChartPosition nw_;
    ChartPosition se_;
    int parentIndex_;
    Kind kind_; ///< For the casts, without a virtual call: queries ask each cell of a view.
};

} // namespace skyvane
