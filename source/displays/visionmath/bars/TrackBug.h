#pragma once

namespace skyvane {

/// Where a direction lies on a band of headings.
struct TrackBug {
    double offsetDegrees = 0.0; ///< From the heading, not beyond the band's ends.
    bool isBeyond = false;      ///< It sits at the edge and points out of it.
    bool isLeft = false;
};

/// For a band of that many degrees round the heading. What lies straight behind is to the right.
TrackBug placeTrackBug(double headingDegrees, double directionDegrees, double bandDegrees);

} // namespace skyvane
