#include "displays/visionmath/bars/TapeBar.h"

namespace skyvane {
namespace {

/// Height of a pointer box in digits of its value; its point, in parts of its width.
constexpr double boxDigits = 2.7, pointShare = 0.165;

} // namespace

bool TapeBar::begin(const ShapeRect& titlePlace, const ShortText& title, uint32_t bandColor, const wchar_t* failureName,
                    uint32_t titleColor) {
    pen_.band(place_, bandColor);
    pen_.label(titlePlace, title, layout_.word, titleColor);
    if (!isValueShown(flag_)) {
        pen_.cross(place_, failureName);
        return false;
    }
    if (flag_ == DialFlag::Doubtful)
        pen_.frame(BarCanvas::Scale, place_, layout_.line, BarColor::doubtful);
    if (flag_ == DialFlag::Simulated) {
        BarText word;
        word.text = L"SIM";
        word.height = layout_.word;
        word.argb = BarColor::simulated;
        word.place = ShapePoint(middleX(place_), place_.UpperLeftCorner.Y + layout_.word);
        pen_.text(BarCanvas::Box, word);
    }
    return true;
}

void TapeBar::strip(const Tape& tape, double low, double high, double from, double to, uint32_t argb) {
    if (!(high > low))
        return;
    const double top = tape.clampedAt(high), bottom = tape.clampedAt(low), width = inwards() * getStripWidth();
    const double a = edge() + from * width, b = edge() + to * width;
    pen_.rect(BarCanvas::Scale, {std::min(a, b), top, std::max(a, b), bottom}, argb);
}

void TapeBar::addMark(double y, bool isLong) {
    if (!isInside(y))
        return;
    const double width = layout_.shortMark * (isLong ? 1.6 : 1.0);
    const double start = edge() + inwards() * getStripWidth(), end = start + inwards() * width;
    const double half = 0.5 * layout_.line;
    pen_.rect(BarCanvas::Scale, {std::min(start, end), y - half, std::max(start, end), y + half},
              BarColor::inkOf(flag_));
}

void TapeBar::addNumber(double y, const ShortText& number) {
    BarText text;
    text.text = number;
    text.height = layout_.tick;
    text.argb = BarColor::inkOf(flag_);
    const double start = getStripWidth() + 1.6 * layout_.shortMark + 0.35 * layout_.tick;
    text.align = side_ == MarksLeft ? BarText::Left : BarText::Right;
    text.place = ShapePoint(edge() + inwards() * start, y);
    text.most = place_.getWidth() - start - 0.15 * layout_.tick;
    text.clip = place_;
    pen_.text(BarCanvas::Scale, text);
}

ShapeRect TapeBar::box(uint32_t tint) {
    const double half = 0.5 * boxDigits * layout_.value, middle = middleY(place_);
    const double start = edge() + inwards() * getStripWidth();
    const double end = side_ == MarksLeft ? place_.LowerRightCorner.X : place_.UpperLeftCorner.X;
    ShapeRect box(std::min(start, end), middle - half, std::max(start, end), middle + half);
    pen_.picture(BarPicture::Pointer, box, tint, side_ == MarksLeft);
    const double rim = 0.11 * 2.0 * half; // what of the picture lies outside of its frame
    return {box.UpperLeftCorner.X, box.UpperLeftCorner.Y + rim, box.LowerRightCorner.X, box.LowerRightCorner.Y - rim};
}

double TapeBar::getDigitsRight() const {
    const double width = place_.getWidth() - getStripWidth();
    if (side_ == MarksLeft)
        return place_.LowerRightCorner.X - 0.06 * width;
    return place_.LowerRightCorner.X - getStripWidth() - pointShare * width;
}

} // namespace skyvane
