#include "displays/visionmath/bars/RollingDigits.h"

#include <cmath>
#include <cstdlib>

namespace skyvane {
namespace {

double powerOfTen(int exponent) {
    double result = 1.0;
    for (int i = 0; i < exponent; ++i)
        result *= 10.0;
    return result;
}

wchar_t digitOf(long long number) {
    return static_cast<wchar_t>(L'0' + number % 10);
}

} // namespace

bool RollingDigits::canShow(double value, const Form& form) {
    return std::abs(value) < powerOfTen(form.digits) - form.step;
}

RollingDigits::RollingDigits(double value, const Form& form) {
    if (!canShow(value, form))
        return;
    width_ = form.digits;
    negative_ = std::floor(value / form.step + 0.5) < 0.0;
    const double magnitude = std::abs(value);
    for (int exponent = form.digits - 1; exponent >= form.lastDigits; --exponent) {
        Column& column = columns_[count_++];
        addColumn(column, magnitude, powerOfTen(exponent), form.step, value < 0.0 ? -1.0 : 1.0);
    }
    addLastColumn(columns_[count_++], value, form);
}

void RollingDigits::addLastColumn(Column& column, double value, const Form& form) {
    column.digits = form.lastDigits;
    const double position = value / form.step;
    const auto first = static_cast<long long>(std::floor(position)) - 1;
    for (long long i = 0; i < 4; ++i) {
        Face& face = column.faces[column.count++];
        face.offset = static_cast<double>(first + i) - position;
        const long long number = std::abs(std::llround(static_cast<double>(first + i) * form.step));
        if (form.lastDigits == 2) {
            face.text[0] = digitOf(number / 10);
            face.text[1] = digitOf(number);
        } else {
            face.text[0] = digitOf(number);
        }
    }
}

/// A leading zero is left out; the one that follows it comes up from the empty place.
void RollingDigits::addColumn(Column& column, double magnitude, double unit, double step, double direction) {
    const auto whole = static_cast<long long>(std::floor(magnitude / unit));
    const double rest = magnitude - static_cast<double>(whole) * unit;
    const double turned = rest > unit - step ? (rest - (unit - step)) / step : 0.0;
    if (whole > 0) {
        Face& face = column.faces[column.count++];
        face.text[0] = digitOf(whole);
        face.offset = -turned * direction;
    }
    if (turned > 0.0) {
        Face& face = column.faces[column.count++];
        face.text[0] = digitOf(whole + 1);
        face.offset = (1.0 - turned) * direction;
    }
}

} // namespace skyvane
