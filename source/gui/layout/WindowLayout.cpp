#include "gui/layout/WindowLayout.h"

#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/ini/SeparatedString.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace skyvane {
namespace {

using Kind = LayoutElement::Kind;

constexpr double mostWindowsOff = 10.0;
constexpr double leastRatio = 0.05;
constexpr double mostRatio = 20.0;

constexpr std::pair<const char*, Kind> kinds[] = {{"Button", Kind::Button},
                                                  {"Text", Kind::Text},
                                                  {"ListBox", Kind::ListBox},
                                                  {"ComboBox", Kind::ComboBox},
                                                  {"CheckBox", Kind::CheckBox},
                                                  {"VerticalScrollBar", Kind::VerticalScrollBar},
                                                  {"HorizontalScrollBar", Kind::HorizontalScrollBar},
                                                  {"EditBox", Kind::EditBox},
                                                  {"SpecialRectangle", Kind::SpecialRectangle}};

constexpr int plainStringId = -3;
constexpr std::pair<const char*, int> editTypes[] = {{"INT_EDIT", -1},         {"DOUBLE_EDIT", -2},
                                                     {"NO_EDIT", -4},          {"MULTILINE_STRING_EDIT", -5},
                                                     {"DESTINATION_EDIT", -6}, {"TERMINAL_EDIT", -7}};

template <class Table>
auto findWord(const Table& table, const std::string& word) {
    const auto found =
        std::find_if(std::begin(table), std::end(table), [&word](const auto& entry) { return word == entry.first; });
    return found == std::end(table) ? nullptr : &*found;
}

/// The keys of one section, which stays as it is.
class Section {
public:
    Section(IniFile& document, std::string name) : document_(document), name_(std::move(name)) {}
    std::string text(const char* key) const { return readValue(document_, name_, key); }
    int number(const char* key, int fallback) const { return toInt(text(key), fallback); }

private:
    IniFile& document_;
    std::string name_;
};

LayoutRect readRect(const std::string& text) {
    double edges[4] = {0.0, 0.0, 0.0, 0.0};
    const std::vector<std::string> parts = parseSeperatedString(text, ',');
    for (std::size_t i = 0; i < std::min<std::size_t>(parts.size(), 4); ++i)
        edges[i] = std::clamp(toDouble(parts[i]), -mostWindowsOff, mostWindowsOff);
    return {std::min(edges[0], edges[2]), std::min(edges[1], edges[3]), std::max(edges[0], edges[2]),
            std::max(edges[1], edges[3])};
}

std::optional<LayoutElement> readElement(const Section& section) {
    const auto* kind = findWord(kinds, section.text("Type"));
    if (!kind)
        return std::nullopt;
    LayoutElement element;
    element.kind = kind->second;
    element.id = section.text("Id");
    element.domain = section.number("VisibilityDomain", 0);
    element.horizontal = alignmentOf(section.text("HAlign"));
    element.vertical = alignmentOf(section.text("VAlign"));
    element.text = section.text("Text");
    element.defaultText = section.text("Default");
    element.rect = readRect(section.text("Rect"));
    element.editId = editIdOf(section.text("EditType"));
    element.hides = section.number("Hides", -1);
    element.switches = section.number("Switches", -1);
    element.partners = parseSeperatedString(section.text("ExclusiveCounterParts"), ',');
    return element;
}

} // namespace

WindowLayout WindowLayout::read(IniFile& document) {
    WindowLayout layout;
    const Section head(document, "");
    const double ratio = toDouble(head.text("Ratio"));
    if (ratio > 0.0)
        layout.ratio = std::clamp(ratio, leastRatio, mostRatio);
    const int count = std::min(head.number("EleCount", 0), maximumElements);
    for (int i = 0; i < count; ++i)
        if (std::optional<LayoutElement> element = readElement(Section(document, "E" + toText(i))))
            layout.elements.push_back(std::move(*element));
    return layout;
}

LayoutElement::Alignment alignmentOf(const std::string& word) {
    if (word == "Left" || word == "Top")
        return LayoutElement::Near;
    return word == "Center" ? LayoutElement::Centre : LayoutElement::Far;
}

int editIdOf(const std::string& editType) {
    const auto* found = findWord(editTypes, editType);
    return found ? found->second : plainStringId;
}

irr::core::rect<int> windowRect(const irr::core::rect<int>& area, double ratio) {
    double width = area.getWidth();
    double height = width / ratio;
    if (height >= area.getHeight() + 0.5) {
        height = area.getHeight();
        width = height * ratio;
    }
    const double x = (area.UpperLeftCorner.X + area.LowerRightCorner.X) / 2.0;
    const double y = (area.UpperLeftCorner.Y + area.LowerRightCorner.Y) / 2.0;
    const auto rounded = [](double value) { return static_cast<int>(value + 0.5); };
    return {rounded(x - width / 2), rounded(y - height / 2), rounded(x + width / 2), rounded(y + height / 2)};
}

irr::core::rect<int> elementRect(const LayoutRect& rect, const irr::core::rect<int>& area, double keptRatio) {
    const int w = area.getWidth();
    const int h = area.getHeight();
    const irr::core::rect<int> free(static_cast<int>(rect.left * w + area.UpperLeftCorner.X),
                                    static_cast<int>(rect.top * h + area.UpperLeftCorner.Y),
                                    static_cast<int>(rect.right * w + area.UpperLeftCorner.X),
                                    static_cast<int>(rect.bottom * h + area.UpperLeftCorner.Y));
    const double shareX = rect.right - rect.left;
    const double shareY = rect.bottom - rect.top;
    if (!(keptRatio > 0.0 && shareX > 0.0 && shareY > 0.0))
        return free;
    const double aspect = shareX * keptRatio / shareY;
    double width = shareX * w;
    double height = width / aspect;
    if (height > shareY * h) {
        height = shareY * h;
        width = aspect * height;
    }
    const double x = (rect.left + rect.right) / 2 * w + area.UpperLeftCorner.X;
    const double y = (rect.top + rect.bottom) / 2 * h + area.UpperLeftCorner.Y;
    const auto rounded = [](double value) { return static_cast<int>(value + 0.5); };
    return {rounded(x - width / 2), rounded(y - height / 2), rounded(x + width / 2), rounded(y + height / 2)};
}

} // namespace skyvane
