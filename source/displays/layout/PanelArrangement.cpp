#include "displays/layout/PanelArrangement.h"

#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <utility>

namespace skyvane {
namespace {

int pageOf(IniFile& ini, int panel) {
    return std::clamp(toInt(readValue(ini, PanelArrangement::sectionOf(panel), "Page")), 0, PageLayout::maximumPage);
}

/// The edges in order, far enough apart for a finger, and a part of them inside the area.
void makeReachable(double& low, double& high) {
    constexpr double least = 0.04, edge = 0.02, widest = 100.0;
    if (low > high)
        std::swap(low, high);
    low = std::clamp(low, -widest, widest);
    high = std::clamp(high, low + least, widest + least);
    if (low <= 1.0 - edge && high >= edge)
        return;
    const double extent = std::min(high - low, 1.0);
    low = std::clamp(low, 0.0, 1.0 - extent);
    high = low + extent;
}

} // namespace

PanelArrangement::PanelArrangement(IniFile& document, bool portrait) : ini_(document), portrait_(portrait) {
    closeUpSections();
}

void PanelArrangement::closeUpSections() {
    const int stated = readPanelCount(ini_);
    int next = 0;
    for (int panel = 0; panel < stated; ++panel) {
        if (!ini_.isSectionAvailable(sectionOf(panel)))
            continue;
        if (panel != next)
            ini_.moveSection(sectionOf(panel), sectionOf(next));
        ++next;
    }
    writeCount(next);
}

void PanelArrangement::writeCount(int count) {
    count_ = count;
    ini_.set("", "PanelCount", toText(count));
}

std::string PanelArrangement::sectionOf(int panel) {
    return "P" + toText(panel);
}

int PanelArrangement::getPageCount() const {
    return calcPageCountFromIni(ini_);
}

void PanelArrangement::turnPage(int step) {
    page_ = std::clamp(page_ + step, 0, std::min(getPageCount(), PageLayout::maximumPage));
    chosen_ = none;
}

bool PanelArrangement::isShown(int panel) const {
    return panel >= 0 && panel < count_ && pageOf(ini_, panel) == page_ &&
           toBool(readValue(ini_, sectionOf(panel), "Portrait")) == portrait_;
}

std::vector<int> PanelArrangement::getPanels() const {
    std::vector<int> panels;
    for (int panel = 0; panel < count_; ++panel)
        if (isShown(panel))
            panels.push_back(panel);
    return panels;
}

void PanelArrangement::choose(int panel) {
    chosen_ = isShown(panel) ? panel : none;
}

int PanelArrangement::getFactoryIndex(int panel) const {
    return toInt(readValue(ini_, sectionOf(panel), "FactoryIndex"), -1);
}

std::string PanelArrangement::getTitle(int panel) const {
    const std::string name = readValue(ini_, sectionOf(panel), "FactoryName");
    const std::string type = readValue(ini_, sectionOf(panel), "Type");
    return type.empty() ? name : type + " (" + name + ")";
}

PanelFractions PanelArrangement::getFractions(int panel) const {
    PanelFractions place = readFractions(ini_, sectionOf(panel));
    makeReachable(place.left, place.right);
    makeReachable(place.top, place.bottom);
    return place;
}

void PanelArrangement::setFractions(int panel, const PanelFractions& fractions) {
    writeFractions(ini_, sectionOf(panel), fractions);
}

/// A whole empty page; otherwise the middle, a little further for each panel, so that none hides the one before.
PanelFractions PanelArrangement::placeForNew() const {
    const size_t panels = getPanels().size();
    if (panels == 0)
        return {0.0, 0.0, 1.0, 1.0};
    const double step = 0.04 * static_cast<double>(panels % 6);
    return {0.2 + step, 0.2 + step, 0.6 + step, 0.6 + step};
}

std::string PanelArrangement::beginNew(int factoryIndex, const std::string& factoryName) {
    const std::string section = sectionOf(count_);
    ini_.removeSection(section);
    ini_.set(section, "FactoryIndex", toText(factoryIndex));
    ini_.set(section, "FactoryName", factoryName);
    ini_.set(section, "Page", toText(page_));
    ini_.set(section, "Portrait", portrait_ ? "1" : "0");
    writeFractions(ini_, section, placeForNew());
    return section;
}

void PanelArrangement::keepNew() {
    writeCount(count_ + 1);
    choose(count_ - 1);
}

void PanelArrangement::dropNew() {
    ini_.removeSection(sectionOf(count_));
}

void PanelArrangement::remove() {
    if (chosen_ == none)
        return;
    ini_.removeSection(sectionOf(chosen_));
    for (int panel = chosen_ + 1; panel < count_; ++panel)
        ini_.moveSection(sectionOf(panel), sectionOf(panel - 1));
    writeCount(count_ - 1);
    cleanPage(ini_, page_);
    turnPage(0);
}

void PanelArrangement::moveToTop() {
    if (chosen_ == none)
        return;
    // The section behind the last stands in for the moved one, which closing up brings to the end.
    ini_.moveSection(sectionOf(chosen_), sectionOf(count_));
    for (int panel = chosen_; panel < count_; ++panel)
        ini_.moveSection(sectionOf(panel + 1), sectionOf(panel));
    chosen_ = count_ - 1;
}

void PanelArrangement::moveToPage(int step) {
    if (chosen_ == none)
        return;
    const int moved = chosen_, from = page_;
    const int to = std::clamp(from + step, 0, std::min(getPageCount(), PageLayout::maximumPage));
    ini_.set(sectionOf(moved), "Page", toText(to));
    cleanPage(ini_, from);
    page_ = pageOf(ini_, moved);
    choose(moved);
}

} // namespace skyvane
