#pragma once

#include "core/geometry/EngineMath.h"

#include <string>
#include <vector>

namespace skyvane {

class IniFile;

/// The part of the screen that panels share: its whole width, between two heights.
struct PanelArea {
    int width;
    int top;
    int bottom;
};

/// Corners of a panel as fractions of the panel area. Values beyond 0..1 are legal.
struct PanelFractions {
    double left;
    double top;
    double right;
    double bottom;
};

/// Pixels of the screen, each edge truncated. Swapped edges are put in order, and fractions that no screen needs are
/// limited, so that any numbers give a rectangle that can be computed with.
irr::core::rect<int> panelRect(const PanelFractions& fractions, const PanelArea& area);

/// The rectangle of a panel's section; a number that is missing, or none, is 0.
PanelFractions readFractions(IniFile& ini, const std::string& section);
void writeFractions(IniFile& ini, const std::string& section, const PanelFractions& fractions);

/// The pages of a configuration document: its sections "P0", "P1" and so on, with the layout of one orientation.
///
/// The document may hold anything: missing sections are passed over, counts and page numbers are limited.
struct PageLayout {
    struct Panel {
        std::string section;
        int factoryIndex; ///< As written; the reader bounds it to its list. -1 when there is none.
        int page;
        irr::core::rect<int> rect;
    };

    static constexpr int maximumPanels = 4096;
    static constexpr int maximumPage = 999;

    int pageCount = 1;         ///< Of the panels of both orientations, at least 1.
    std::vector<Panel> panels; ///< Those of the orientation, in section order.

    /// Changes nothing in the document.
    static PageLayout read(IniFile& ini, const PanelArea& area, bool portrait);
    /// The page that many steps away, with wrap round at both ends.
    int pageAt(int page, int steps) const;
};

/// `PanelCount`, within 0 and the maximum; a number beyond every integer is many, not none.
int readPanelCount(IniFile& ini);

/// 1 when `PanelCount` is below 1, otherwise the largest `Page` of all sections plus 1, at least 1.
int calcPageCountFromIni(IniFile& ini);

/// Closes up the pages above one that no section uses any more. False, changing nothing, when one still does.
bool cleanPage(IniFile& ini, int page);

} // namespace skyvane
