#pragma once

#include "displays/layout/PageLayout.h"

#include <string>
#include <vector>

namespace skyvane {

class IniFile;

/// The pages of a configuration document while the pilot arranges them: one page of one orientation is shown, and one
/// of its panels may be chosen. Every change goes straight into the document, which nobody else changes meanwhile.
///
/// Sections are numbered without gaps from the start on, whatever the document held. Pages close up when their last
/// panel leaves them. A panel is its section's number; it changes when a panel before it goes.
class PanelArrangement {
public:
    static constexpr int none = -1;

    /// The document outlives the arrangement.
    PanelArrangement(IniFile& document, bool portrait);

    int getPage() const { return page_; }
    int getPageCount() const;
    /// At most to one page behind the last, which is empty: panels can be added there.
    void turnPage(int step);

    /// Those of the page and the orientation, in the order of drawing.
    std::vector<int> getPanels() const;
    int getChosen() const { return chosen_; }
    /// Anything but a panel of the page chooses none.
    void choose(int panel);

    static std::string sectionOf(int panel);
    /// -1 when there is none.
    int getFactoryIndex(int panel) const;
    /// What a list says about it: the value that it shows, and the name of its kind.
    std::string getTitle(int panel) const;
    /// As the section has them, or near there when no finger could take hold of them.
    PanelFractions getFractions(int panel) const;
    void setFractions(int panel, const PanelFractions& fractions);

    bool isFull() const { return count_ >= PageLayout::maximumPanels; }
    /// Writes a section behind the last one, for its factory to complete, and gives its name. It counts from keepNew()
    /// on, which chooses it; dropNew() takes it away.
    std::string beginNew(int factoryIndex, const std::string& factoryName);
    void keepNew();
    void dropNew();

    // Of the chosen panel; nothing without one.
    void remove();
    /// Drawn last, over all others.
    void moveToTop();
    /// To a page before or behind; the page that is shown follows.
    void moveToPage(int step);

private:
    void closeUpSections();
    void writeCount(int count);
    PanelFractions placeForNew() const;
    bool isShown(int panel) const;

    IniFile& ini_;
    bool portrait_;
    int count_ = 0;
    int page_ = 0;
    int chosen_ = none;
};

} // namespace skyvane
