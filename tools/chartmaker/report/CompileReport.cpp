#include "chartmaker/report/CompileReport.h"

#include "chart/elements/ElementKinds.h"

#include <iomanip>
#include <ostream>

namespace skyvane {

std::string toText(const SourceLine& line) {
    return std::string(line.file) + (line.number > 0 ? ":" + std::to_string(line.number) : std::string());
}

std::string printable(std::string_view text) {
    constexpr size_t mostBytes = 200;
    std::string shown(text.substr(0, mostBytes));
    for (char& c : shown)
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7f')
            c = '?';
    return text.size() > mostBytes ? shown + "..." : shown;
}

void CompileReport::writeLine(const SourceLine& line, const std::string& words, bool onConsole) {
    const std::string text = toText(line) + ": " + words + "\n";
    if (details_)
        *details_ << text;
    const long shown = refused_ + warned_;
    if (!onConsole || shown > ConsoleLines + 1)
        return;
    if (clearConsole_)
        clearConsole_();
    if (shown <= ConsoleLines)
        console_ << text;
    else
        console_ << (details_ ? "... the report has the rest\n" : "... and more; --report FILE writes them all\n");
}

void CompileReport::merge(IChartElement::Type type, const SourceLine& line, const std::string& label,
                          const SourceLine& into) {
    ++counts_[type].merged;
    if (details_)
        writeLine(line, "merged: " + printable(label) + " into " + toText(into), false);
}

void CompileReport::refuse(const SourceLine& line, const std::string& reason) {
    ++refused_;
    writeLine(line, "refused: " + reason, true);
}

void CompileReport::warn(const SourceLine& line, const std::string& words) {
    ++warned_;
    writeLine(line, "warning: " + words, true);
}

void CompileReport::writeSummary(std::ostream& out) const {
    constexpr int nameWidth = 16, width = 10;
    out << std::left << std::setw(nameWidth) << "" << std::right;
    for (const char* title : {"taken", "merged", "repeated", "outside"})
        out << std::setw(width) << title;
    out << '\n';
    for (const ElementKind& kind : elementKinds) {
        const Counts& counts = counts_[kind.type];
        if (counts.taken + counts.merged + counts.repeated + counts.outside == 0)
            continue;
        out << std::left << std::setw(nameWidth) << kind.name << std::right;
        for (const long count : {counts.taken, counts.merged, counts.repeated, counts.outside})
            out << std::setw(width) << count;
        out << '\n';
    }
    out << refused_ << " refused, " << warned_ << " with a warning\n";
}

} // namespace skyvane
