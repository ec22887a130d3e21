#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

/// Reads a text line by line, as a stream: a file, plain or packed by gzip, or bytes at hand.
///
///     LineReader lines(path);
///     for (std::string_view line; lines.next(line);) ...        // without its end; valid until the next call
///     if (!lines.getError().empty()) ...
///
/// Lines end with a line feed, with a carriage return before it or without. A longer line than LongestLine is cut; a
/// byte order mark at the beginning is left out, and text in UTF-16 isn't read. Takes a few hundred kilobytes, whatever
/// the file.
class LineReader {
public:
    static constexpr size_t LongestLine = 256 * 1024;

    explicit LineReader(const std::string& path);

    bool next(std::string_view& line);
    /// Of the last line, from 1 on.
    long getLineNumber() const { return number_; }
    /// The last line has no end: it may have lost some of its text.
    bool isUnended() const { return isUnended_; }
    /// How much of the file is read, 0 to 1.
    double getShare() const { return share_ ? share_() : 1.0; }
    /// Why nothing can be read, or no more; empty when there is nothing wrong.
    const std::string& getError() const { return error_; }

private:
    bool fill();
    void append(std::string_view piece);
    bool takeMark();

    std::function<long(char*, unsigned)> read_; ///< Bytes read, negative for an error.
    std::function<double()> share_;
    std::vector<char> block_;
    std::string_view rest_; ///< Of the block.
    std::string line_;
    long number_ = 0;
    bool isUnended_ = false;
    std::string error_;
};

} // namespace skyvane
