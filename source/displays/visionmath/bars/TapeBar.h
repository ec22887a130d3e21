#pragma once

#include "displays/visionmath/bars/BarPen.h"
#include "displays/visionmath/bars/PfdLayout.h"
#include "displays/visionmath/bars/Tape.h"

namespace skyvane {

/// An upright tape with its marks on one side, its numbers beside them, and a pointer box over its middle.
class TapeBar {
public:
    enum Side { MarksLeft, MarksRight };

    /// `strip` is the width of its coloured strips, in parts of the bar's.
    TapeBar(BarPen& pen, const PfdLayout& layout, const ShapeRect& place, Side side, DialFlag flag, double strip = 0.07)
        : pen_(pen), layout_(layout), place_(place), side_(side), flag_(flag), strip_(strip) {}

    /// Background and title; false when the value failed, which leaves a cross with that name.
    bool begin(const ShapeRect& titlePlace, const ShortText& title, uint32_t bandColor, const wchar_t* failureName,
               uint32_t titleColor = BarColor::white);

    Tape makeTape(double value, double range) const {
        return {value, range, place_.LowerRightCorner.Y, place_.UpperLeftCorner.Y};
    }
    /// A strip along the marks' edge from one value to another, as far as it is in view. `from` and `to` across, in
    /// parts of a strip's width from the edge.
    void strip(const Tape& tape, double low, double high, double from, double to, uint32_t argb);
    /// A short mark at each step; those at a multiple of `numbered` steps are long and have room for a number.
    /// `limit` is the lowest value that there is.
    template <class Format>
    void scale(const Tape& tape, double step, int numbered, double limit, const Format& format) {
        for (long long i = tape.getFirstStep(step); i <= tape.getLastStep(step); ++i) {
            const double mark = static_cast<double>(i) * step;
            if (mark < limit)
                continue;
            const bool isLong = i % numbered == 0;
            addMark(tape.at(mark), isLong);
            if (isLong)
                addNumber(tape.at(mark), format(mark));
        }
    }
    /// The pointer box over the middle, tinted; gives the window for what is to be read there.
    ShapeRect box(uint32_t tint);
    double getDigitsRight() const;
    double getStripWidth() const { return strip_ * layout_.barWidth; }
    double edge() const { return side_ == MarksLeft ? place_.UpperLeftCorner.X : place_.LowerRightCorner.X; }
    double inwards() const { return side_ == MarksLeft ? 1.0 : -1.0; }

private:
    void addMark(double y, bool isLong);
    void addNumber(double y, const ShortText& number);
    bool isInside(double y) const {
        return y >= place_.UpperLeftCorner.Y + layout_.line && y <= place_.LowerRightCorner.Y - layout_.line;
    }

    BarPen& pen_;
    const PfdLayout& layout_;
    ShapeRect place_;
    Side side_;
    DialFlag flag_;
    double strip_;
};

} // namespace skyvane
