#pragma once

#include "chartmaker/text/LineReader.h"

#include <deque>
#include <string>
#include <vector>

namespace skyvane {

/// Splits a text into records of comma-separated values.
///
/// A value in double quotes may hold commas, doubled quotes and line ends. A quote that isn't closed within
/// LongestRecordLines makes its line broken; the lines behind it are read on their own.
class CsvReader {
public:
    static constexpr size_t LongestRecordLines = 50;

    /// The lines outlive the reader.
    explicit CsvReader(LineReader& lines) : lines_(lines) {}

    bool next();
    const std::vector<std::string>& getValues() const { return values_; }
    /// Where the record begins.
    long getLineNumber() const { return number_; }
    /// A quote stays open.
    bool isBroken() const { return isQuoted_; }

private:
    bool takeLine(std::string& line);
    void split(const std::string& line);

    LineReader& lines_;
    std::deque<std::string> pending_; ///< Lines given back.
    long taken_ = 0;
    long number_ = 0;
    std::vector<std::string> values_;
    bool isQuoted_ = false; ///< The last value is open.
};

} // namespace skyvane
