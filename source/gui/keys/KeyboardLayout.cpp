#include "gui/keys/KeyboardLayout.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

int keyHeight(irr::core::dimension2d<int> screen, int buttonHeight, int rows) {
    const int fitting = screen.Height / 2 / std::max(1, rows);
    return std::max(1, std::min(buttonHeight * 3 / 2, fitting));
}

KeyboardLayout layOutKeyboard(const KeyboardDefinition& definition, irr::core::dimension2d<int> screen,
                              int buttonHeight) {
    const int rows = static_cast<int>(definition.rows.size());
    const int height = keyHeight(screen, buttonHeight, rows);
    const int columns = std::max(1, definition.columns);
    const double widest = static_cast<double>(screen.Width) / columns;
    const double width = definition.aspect > 0.0 ? std::min(widest, definition.aspect * height) : widest;
    const double left = (screen.Width - width * columns) / 2.0;
    const auto column = [&](double keys) { return static_cast<int>(std::lround(left + keys * width)); };
    KeyboardLayout layout;
    layout.area = {column(0), screen.Height - rows * height, column(columns), screen.Height};
    int top = layout.area.UpperLeftCorner.Y;
    for (const std::vector<KeyDefinition>& row : definition.rows) {
        double passed = 0.0;
        for (const KeyDefinition& key : row) {
            layout.keys.emplace_back(column(passed), top, column(passed + key.width), top + height);
            passed += key.width;
        }
        top += height;
    }
    return layout;
}

} // namespace skyvane
