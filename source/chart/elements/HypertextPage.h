#pragma once

#include <string>

namespace skyvane {

/// Builds a page of the hypertext markup: lines and headings one below the other.
///
///     HypertextPage page;
///     page.heading("Elevation: 2625 feet");
///     page.line("asphalt");
///     return page.text();
///
/// Any text shows as it is: what the markup would take for its own is escaped, a double quote becomes a single one.
class HypertextPage {
public:
    void line(const std::string& text);
    /// Larger and blue.
    void heading(const std::string& text);
    /// A heading and the remarks under it, ";          " beginning a new line; nothing when they are empty.
    void remarks(const std::string& heading, const std::string& remarks);

    bool empty() const { return rows_.empty(); }
    /// The page; "No detailed description available." when nothing was added.
    std::string text() const;

    /// A run of text alone, which is a page too.
    static std::string run(const std::string& text);

private:
    void add(const std::string& element);

    std::string rows_;
};

/// Each of the other's remarks that isn't empty or the same goes behind a blank.
void appendRemarks(std::string& remarks, const std::string& others);

} // namespace skyvane
