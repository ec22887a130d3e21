#pragma once

#include "chart/elements/IChartElement.h"
#include "chartmaker/compile/SourceLine.h"

#include <array>
#include <functional>
#include <iosfwd>
#include <string>

namespace skyvane {

/// Tells people what a compile made of its sources: each line that wasn't taken as it stands, and the sums at the end.
///
/// A line of the report is "FILE:LINE: refused: WHY", as compilers have it. All of them go to `details`, when there is
/// one; the first warnings and refusals also to `console`. Text from files is shown without control characters.
class CompileReport {
public:
    /// So many lines go to the console.
    static constexpr long ConsoleLines = 20;

    /// Both outlive the report; `details` may be null. `clearConsole` makes room for a line, where something is shown.
    CompileReport(std::ostream& console, std::ostream* details, std::function<void()> clearConsole = {})
        : console_(console), details_(details), clearConsole_(std::move(clearConsole)) {}

    void take(IChartElement::Type type) { ++counts_[type].taken; }
    void merge(IChartElement::Type type, const SourceLine& line, const std::string& label, const SourceLine& into);
    /// A record that stands there byte for byte already.
    void repeat(IChartElement::Type type) { ++counts_[type].repeated; }
    void leaveOutside(IChartElement::Type type) { ++counts_[type].outside; }
    void refuse(const SourceLine& line, const std::string& reason);
    void warn(const SourceLine& line, const std::string& words);

    long getTaken(IChartElement::Type type) const { return counts_[type].taken; }
    long getMerged(IChartElement::Type type) const { return counts_[type].merged; }
    long getRepeated(IChartElement::Type type) const { return counts_[type].repeated; }
    long getOutside(IChartElement::Type type) const { return counts_[type].outside; }
    long getRefused() const { return refused_; }
    long getWarned() const { return warned_; }

    /// A table of the kinds, and the sums.
    void writeSummary(std::ostream& out) const;

private:
    struct Counts {
        long taken = 0;
        long merged = 0;
        long repeated = 0;
        long outside = 0;
    };

    void writeLine(const SourceLine& line, const std::string& words, bool onConsole);

    std::ostream& console_;
    std::ostream* details_;
    std::function<void()> clearConsole_;
    std::array<Counts, IChartElement::TypeCount> counts_;
    long refused_ = 0;
    long warned_ = 0;
};

/// "FILE:LINE", or the file alone.
std::string toText(const SourceLine& line);
/// The text with "?" for control characters, cut behind 200 bytes.
std::string printable(std::string_view text);

} // namespace skyvane
