#pragma once

#include "core/geometry/EngineMath.h"

#include <string>
#include <vector>

namespace skyvane {

class IniFile;

/// Edges as fractions of a window: finite, in order, at most ten windows off.
struct LayoutRect {
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;
};

/// One element of a window, as its section describes it.
struct LayoutElement {
    enum class Kind {
        Button,
        Text,
        ListBox,
        ComboBox,
        CheckBox,
        VerticalScrollBar,
        HorizontalScrollBar,
        EditBox,
        SpecialRectangle
    };
    /// The values of the engine's alignment.
    enum Alignment { Near = 0, Far = 1, Centre = 2 };

    Kind kind = Kind::Text;
    std::string id;
    LayoutRect rect;
    std::string text; ///< UTF-8
    Alignment horizontal = Far;
    Alignment vertical = Far;
    int domain = 0; ///< Visibility group; 0 for none.
    std::string defaultText;
    int editId = -3;                   ///< The id that tells the input layer which keyboard an edit box takes.
    int hides = -1;                    ///< Domain that is shown only while the check box is checked; -1 for none.
    int switches = -1;                 ///< Domain that is enabled only while it is; -1 for none.
    std::vector<std::string> partners; ///< The other check boxes of its radio group.
};

/// A window layout document (docs/formats/layouts.md) as plain data. Any document gives some layout: unknown types are
/// left out, and counts, ratios and rectangles have limits.
struct WindowLayout {
    static constexpr int maximumElements = 1000;
    static constexpr double standardRatio = 1.77778;

    static WindowLayout read(IniFile& document);

    double ratio = standardRatio; ///< Width to height of the design, 0.05 to 20.
    std::vector<LayoutElement> elements;
};

/// "Left", "Top": near; "Center": centre; any other word: far.
LayoutElement::Alignment alignmentOf(const std::string& word);
/// The element id that stands for an `EditType`; that of a plain string for an unknown one.
int editIdOf(const std::string& editType);

/// Largest rectangle of that ratio in the area, centred; the full height when the full width would need more.
irr::core::rect<int> windowRect(const irr::core::rect<int>& area, double ratio);

/// The fractions of the area, truncated. With `keptRatio` above 0, the ratio of the design, the element keeps the shape
/// that it had there, centred where it would stand otherwise.
irr::core::rect<int> elementRect(const LayoutRect& rect, const irr::core::rect<int>& area, double keptRatio = 0.0);

} // namespace skyvane
