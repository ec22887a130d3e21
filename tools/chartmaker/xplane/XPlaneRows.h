#pragma once

#include "chartmaker/compile/SourceKind.h"
#include "chartmaker/text/LineReader.h"

#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

/// The rows of a navigation file of X-Plane or FlightGear: a line "I" or "A", one that begins with the version, then
/// rows of values between blanks, up to a row "99".
///
///     XPlaneRows rows(path, context);
///     while (rows.next()) use(rows.getValues(), rows.getLine());
///     return rows.isGood();
class XPlaneRows {
public:
    XPlaneRows(const std::string& path, const SourceContext& context);

    bool next();
    const std::vector<std::string_view>& getValues() const { return values_; }
    SourceLine getLine() const { return {path_, lines_.getLineNumber()}; }
    /// As the second line tells it, 600 and up.
    int getVersion() const { return version_; }
    /// False when the file couldn't be read to its end, or is none of these files; the sink was told.
    bool isGood() const { return isGood_; }

private:
    void readHeader();

    std::string path_;
    const SourceContext& context_;
    LineReader lines_;
    std::vector<std::string_view> values_;
    int version_ = 0;
    bool isGood_ = true;
    bool isAtEnd_ = false;
};

} // namespace skyvane
