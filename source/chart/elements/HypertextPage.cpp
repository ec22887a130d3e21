#include "chart/elements/HypertextPage.h"

namespace skyvane {

namespace {

const std::string lineBreakInRemarks = ";          ";

// Safe between the quotes of a run: they must not end there, nor may a number sign begin a line, for that is a comment.
std::string escape(const std::string& text) {
    std::string safe;
    safe.reserve(text.size() + 8);
    for (const char c : text) {
        if (c == '\\' || (c == '#' && !safe.empty() && safe.back() == '\n'))
            safe += '\\';
        if (c != '\0')
            safe += c == '"' ? '\'' : c;
    }
    if (!safe.empty() && safe.back() == '\\')
        safe += ' '; // else it would take the closing quote for its own
    return safe;
}

std::string withLineBreaks(const std::string& remarks) {
    std::string text;
    size_t begin = 0;
    for (size_t end; (end = remarks.find(lineBreakInRemarks, begin)) != std::string::npos;
         begin = end + lineBreakInRemarks.size())
        text.append(remarks, begin, end - begin) += '\n';
    return text.append(remarks, begin, std::string::npos);
}

} // namespace

std::string HypertextPage::run(const std::string& text) {
    return "\\T\"" + escape(text) + "\"\\n";
}

void HypertextPage::add(const std::string& element) {
    if (!rows_.empty())
        rows_ += '\\';
    rows_ += element;
}

void HypertextPage::line(const std::string& text) {
    add(run(text));
}

void HypertextPage::heading(const std::string& text) {
    add("\\S1\\0\\135\\255\\0\\" + run(text) + "\\n");
}

void HypertextPage::remarks(const std::string& headingText, const std::string& remarks) {
    if (remarks.empty())
        return;
    heading(headingText);
    line(withLineBreaks(remarks));
}

std::string HypertextPage::text() const {
    return "\\R" + (rows_.empty() ? run("No detailed description available.") : rows_) + "\\n";
}

void appendRemarks(std::string& remarks, const std::string& others) {
    if (others.empty() || others == remarks)
        return;
    if (!remarks.empty())
        remarks += ' ';
    remarks += others;
}

} // namespace skyvane
