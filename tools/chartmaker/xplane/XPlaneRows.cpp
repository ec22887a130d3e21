#include "chartmaker/xplane/XPlaneRows.h"

#include "chartmaker/report/CompileReport.h"
#include "chartmaker/text/SourceText.h"
#include "core/IProgressSink.h"

namespace skyvane {
namespace {

/// More than any row has; the last value takes the rest of the line.
constexpr size_t mostValues = 16;
constexpr int leastVersion = 600;
constexpr int greatestVersion = 1300;
constexpr long linesPerStep = 256;

} // namespace

XPlaneRows::XPlaneRows(const std::string& path, const SourceContext& context)
    : path_(path), context_(context), lines_(path) {
    readHeader();
}

void XPlaneRows::readHeader() {
    std::string_view line;
    const bool isMarked = lines_.next(line) && (trimmed(line) == "I" || trimmed(line) == "A");
    const bool hasVersion = isMarked && lines_.next(line);
    const auto words = splitAtBlanks(line, 2);
    const auto version =
        hasVersion && !words.empty() ? readWhole(words[0], leastVersion, greatestVersion) : std::nullopt;
    isGood_ = version.has_value();
    version_ = version.value_or(0);
    if (!lines_.getError().empty())
        context_.sink.refuse({path_}, lines_.getError());
    else if (!isMarked)
        context_.sink.refuse({path_, 1},
                             "no navigation file of X-Plane or FlightGear: its first line is \"I\" or \"A\"");
    else if (!version)
        context_.sink.refuse({path_, 2}, "no version of such a file (600 to 1300): " + printable(line));
}

bool XPlaneRows::next() {
    std::string_view line;
    while (isGood_ && !isAtEnd_ && lines_.next(line)) {
        if (lines_.getLineNumber() % linesPerStep == 0)
            context_.progress.setProgress(lines_.getShare());
        values_ = splitAtBlanks(line, mostValues);
        isAtEnd_ = values_.size() == 1 && values_[0] == "99";
        if (!values_.empty() && !isAtEnd_)
            return true;
    }
    if (isGood_ && !isAtEnd_) {
        isAtEnd_ = true;
        isGood_ = lines_.getError().empty();
        if (isGood_)
            context_.sink.warn({path_}, "ends without a row 99: it may be cut");
        else
            context_.sink.refuse({path_}, lines_.getError());
    }
    return false;
}

} // namespace skyvane
