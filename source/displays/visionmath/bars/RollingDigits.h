#pragma once

#include <array>
#include <cstddef>

namespace skyvane {

/// A number on turning drums, as counters show it: the last drum turns with the value, the others go to their next
/// digit while the last one goes over its zero.
///
///     RollingDigits digits(1234.0, {2, 20.0, 5});   // 12|34, the last drum in steps of 20
///     for (const auto& column : digits) for (const auto& face : column) ... draw face.text, face.offset up
class RollingDigits {
public:
    struct Form {
        int lastDigits; ///< Digits on the last drum, 1 or 2.
        double step;    ///< Between its faces; divides 10 or 100.
        int digits;     ///< Of the largest number; values beyond it have no picture.
    };
    struct Face {
        wchar_t text[3] = {};
        double offset = 0.0; ///< Faces above the line that is read; the one within half a face is read.
    };
    struct Column {
        std::array<Face, 4> faces;
        size_t count = 0;
        int digits = 1; ///< That many stand side by side on a face.

        const Face* begin() const { return faces.data(); }
        const Face* end() const { return faces.data() + count; }
    };
    static constexpr size_t mostColumns = 6;

    RollingDigits(double value, const Form& form);

    const Column* begin() const { return columns_.data(); } ///< From the left.
    const Column* end() const { return columns_.data() + count_; }
    /// Digits side by side, those left out counted.
    int getWidth() const { return width_; }
    /// The number on the line is below zero.
    bool isNegative() const { return negative_; }
    /// False for a value that these drums can't show.
    static bool canShow(double value, const Form& form);

private:
    void addLastColumn(Column& column, double value, const Form& form);
    void addColumn(Column& column, double magnitude, double unit, double step, double direction);

    std::array<Column, mostColumns> columns_;
    size_t count_ = 0;
    int width_ = 0;
    bool negative_ = false;
};

} // namespace skyvane
