#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/geometry/EngineMath.h"

#include <vector>

namespace skyvane {

/// Where places of the earth stand on a small picture of the country around one of them, north up, flat: good for some
/// tens of miles.
class PreviewFrame {
public:
    using Rect = irr::core::rect<int>;
    using Point = irr::core::vector2d<int>;

    /// The centre stands in the middle of the picture.
    PreviewFrame(const ChartPosition& centre, double pixelsPerMetre, const Rect& picture)
        : centre_(centre), pixelsPerMetre_(pixelsPerMetre), picture_(picture) {}
    /// All places, at least one, on that share of the picture, and never larger than a few hundred metres across.
    static PreviewFrame fit(const std::vector<ChartPosition>& places, const Rect& picture, double share);

    /// In pixels of the screen, beyond the picture for what lies beyond it; the direction from its middle is right even
    /// for what is too far for pixels.
    Point toPixels(const ChartPosition& position) const;
    const Rect& getPicture() const { return picture_; }
    double getPixelsPerMetre() const { return pixelsPerMetre_; }
    const ChartPosition& getCentre() const { return centre_; }

private:
    ChartPosition centre_;
    double pixelsPerMetre_;
    Rect picture_;
};

/// Where the symbol of an aircraft stands, a square of that side: at its place, or, for an aircraft beyond the picture,
/// wholly within the picture's edge in its direction.
struct AircraftMark {
    PreviewFrame::Point place;
    bool isOutside = false;
};
AircraftMark placeAircraft(const PreviewFrame& frame, const ChartPosition& aircraft, int side);

} // namespace skyvane
