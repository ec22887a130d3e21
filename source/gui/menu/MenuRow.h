#pragma once

#include <vector>

namespace skyvane {

class Context;

/// One row of the menu: what stands on it and what it does.
struct MenuRow {
    const wchar_t* text;
    const char* coloredStyle; ///< The button style when the rows are coloured.
    /// May end with another menu in place of the present one: nothing of the menu is touched after it.
    void (*run)(Context& context);
    /// Whether the row is there now; null for always.
    bool (*isShown)(Context& context) = nullptr;
};

/// All rows, from above.
const std::vector<MenuRow>& menuRows();

} // namespace skyvane
