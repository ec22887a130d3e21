#pragma once

#include "displays/shapes/Strokes.h"
#include "displays/visionmath/HorizonLine.h"
#include "displays/visionmath/PitchLadder.h"

#include <cstdint>

namespace skyvane {

/// A picture over a pilot's view, in pixels of the panel.
struct GlassPicture {
    enum Kind { BankScale, BankPointer, Ball, Frame };
    static constexpr size_t kinds = 4;

    Kind kind;
    ShapePoint place; ///< Where its pivot lies.
    ShapePoint size;
    ShapePoint pivot;             ///< In parts of the size.
    double rotationDegrees = 0.0; ///< Anticlockwise.
};

/// The symbols that stand over a pilot's view, as shapes in pixels of the panel. Lines have a dark edge, so that they
/// show on snow and on rock.
///
///     GlassSymbols symbols(lens, free);
///     symbols.addLadder(mesh, ladder, color); ... drawer->draw(mesh) ...
class GlassSymbols {
public:
    static constexpr uint32_t ladderColor = 0xffdcdcdc, markColor = 0xffe6e6e6, doubtfulColor = 0xffffe11f;
    static constexpr uint32_t pathColor = 0xff40ff60, warningColor = 0xfff01c28;
    static constexpr uint32_t skyColor = 0xff4f8fd0, groundColor = 0xff5b4630;
    /// Beyond these red chevrons show the way back.
    static constexpr double steepDegrees = 30.0, bankedDegrees = 60.0;

    /// `free` is what other instruments leave of the panel.
    GlassSymbols(const Lens& lens, const irr::core::rect<int>& free);

    double getLineWidth() const { return line_; }
    double getArcRadius() const { return arcRadius_; }
    /// So far from the middle rungs may stand.
    double getLadderReach() const { return arcRadius_ * 0.86; }
    double getRungHalfLength(const PitchRung& rung) const { return rungHalf_ * (rung.isLong ? 1.0 : 0.5); }
    /// Where the number of a rung stands; -1 for its left end, 1 for its right one.
    Lens::Point getNumberPlace(const PitchRung& rung, int side) const;
    double getNumberHeight() const { return numberHeight_; }

    /// The way that the nose points: the wings of the aircraft flown.
    GlassPicture getFrame() const;
    /// Arc and marks turn with the horizon, the pointer stays.
    GlassPicture getBankScale(double bankDegrees) const;
    GlassPicture getBankPointer() const;
    /// `sideways`, -1 to 1, says where it lies.
    GlassPicture getBall(double sideways) const;

    void addLadder(ShapeMesh& mesh, const PitchLadder& ladder, uint32_t argb);
    /// All across the panel.
    void addHorizon(ShapeMesh& mesh, const HorizonLine& line, uint32_t argb);
    /// What of sky or ground the picture below doesn't show, beyond a line that was brought into view.
    void addSliver(ShapeMesh& mesh, const HorizonLine& line);
    void addFlightPath(ShapeMesh& mesh, const Lens::Point& place);
    /// Towards the horizon when the attitude needs it; nothing otherwise.
    void addChevrons(ShapeMesh& mesh, const HorizonLine& line, double pitchDegrees, double bankDegrees);

private:
    void line(ShapeMesh& mesh, double width, uint32_t argb, bool isClosed = false);
    void segment(ShapeMesh& mesh, const ShapePoint& a, const ShapePoint& b, double width, uint32_t argb);
    void chevron(ShapeMesh& mesh, const ShapePoint& tip, const ShapePoint& towards);
    GlassPicture makePicture(GlassPicture::Kind kind, const ShapePoint& place, double width, double height) const;

    ShapePath path_; ///< Of the line that is being added; keeps its memory.
    Lens lens_;
    ShapeRect view_;
    double line_, arcRadius_, rungHalf_, numberHeight_, size_;
};

} // namespace skyvane
