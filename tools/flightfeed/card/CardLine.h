#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// The words of one line of a card, taken from left to right.
///
/// The first thing that doesn't fit sets error() and stays; everything taken after it gives zero.
class CardLine {
public:
    /// A '#' begins a comment.
    explicit CardLine(const std::string& text);

    bool empty() const { return words_.empty(); }
    bool atEnd() const { return next_ >= words_.size(); }
    const std::string& error() const { return error_; }
    void fail(const std::string& message);

    /// The next word, empty at the end.
    std::string takeWord();
    /// Takes the next word when it is this one.
    bool takeIf(const std::string& word);
    void expect(const std::string& word);

    /// A number without a unit or with this one, within the limits.
    double takeNumber(const char* what, double least, double greatest, const std::string& unit = "");
    double takeMetres(const char* what);             ///< 2625ft, 800m
    double takeSeconds(const char* what);            ///< 60s, 2min
    double takeKnots(double least, double greatest); ///< 15kt
    double takeClimb();                              ///< 500ftmin, 2.5ms: metres per second
    double takeHeading();                            ///< 0 to 360
    void takePoint(double& latitudeDegrees, double& longitudeDegrees);

private:
    bool takeValue(const char* what, double& value, std::string& unit);

    std::vector<std::string> words_;
    size_t next_ = 0;
    std::string error_;
};

} // namespace skyvane
