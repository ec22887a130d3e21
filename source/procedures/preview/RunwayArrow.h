#pragma once

#include "procedures/approach/LandingRunway.h"
#include "procedures/preview/PreviewFrame.h"

#include <optional>

namespace skyvane {

/// The middle of a picture, which the airport's sketch has: around it there is room for the arrow.
PreviewFrame::Rect sketchRect(const PreviewFrame::Rect& picture);
/// The frame of the whole picture in which the sketch stands.
PreviewFrame sketchFrame(const AirportElement& airport, const PreviewFrame::Rect& picture);

/// An arrow on the sketch that points to the end of a runway on which an approach lands, in the direction of landing.
struct RunwayArrow {
    PreviewFrame::Point threshold;
    double courseDegrees; ///< On the picture, clockwise from above.
};
/// Nothing for a runway that the airport doesn't have.
std::optional<RunwayArrow> pointToRunway(const AirportElement& airport, const AppRunway& runway,
                                         const PreviewFrame::Rect& picture);

} // namespace skyvane
