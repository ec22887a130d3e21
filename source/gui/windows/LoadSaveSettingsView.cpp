#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "core/text/Utf8.h"
#include "gui/elements/AggregatableGUIElementAdapter.h"
#include "gui/elements/AggregateGUIElement.h"
#include "gui/elements/BeautifulGUIText.h"
#include "gui/elements/ScrollBar.h"
#include "gui/skin/Skin.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/LoadSaveSettingsDialog.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>

namespace skyvane {
namespace {

const irr::video::SColor entryColor(0xfff2f5f9), folderColor(0xffffd97a);
constexpr const char* signStyles[] = {"renameTransparent", "binTransparent"};

} // namespace

void LoadSaveSettingsDialog::build() {
    IniFile layout = readLayout(context_->isPortrait() ? loadSavePortraitLayout : loadSaveLandscapeLayout);
    window_ = addWindowForRatio(environment_, &layout, environment_->getRootGUIElement()->getAbsolutePosition(), true,
                                nullptr, -1);
    gui_ = std::make_unique<GUI>(environment_, &layout, windowArea(window_), window_, false);
    Skin::setButtonStyle(element("bcancel"), "redNormal");
    Skin::setButtonStyle(element("bload"), "greenNormal");
    Skin::setButtonStyle(element("bsaveload"), "greenNormal");
    element("fileName")->setText(decodeUtf8(options_.name).c_str());
    for (const char* id : {"fileName", "bsaveload"})
        element(id)->setVisible(options_.canSave);
    element("bload")->setVisible(options_.canLoad);
    for (const char* id : {"bimport", "bexport"})
        element(id)->setVisible(!options_.exchangePath.empty());
}

/// Brings the window to what the document has.
void LoadSaveSettingsDialog::show() {
    if (!library_.isEntry(folder_ + chosen_))
        chosen_.clear();
    const std::wstring place = folder_.empty() ? L"" : L"  /  " + decodeUtf8(folder_.substr(0, folder_.size() - 1));
    showText(element("ttitle"), (options_.title + place).c_str());
    rows_.clear();
    const float scrolledTo = bar_ && shownFolder_ == folder_ ? bar_->getPos() : 0.0f;
    shownFolder_ = folder_;
    formerList_ = list_;
    if (list_)
        removeWindow(list_.get());
    if (bar_)
        removeWindow(bar_);
    irr::core::recti area = gui_->getSpecialRectangle("slist");
    const int barWidth = environment_->getSkin()->getSize(irr::gui::EGDS_SCROLLBAR_SIZE);
    const irr::core::recti barPlace(area.LowerRightCorner.X - barWidth, area.UpperLeftCorner.Y, area.LowerRightCorner.X,
                                    area.LowerRightCorner.Y);
    area.LowerRightCorner.X -= barWidth;
    AggregateGUIElement::Options options;
    options.scrollable = true;
    makeRows(static_cast<float>(context_->getRecommendedButtonHeight() * 5 / 4) /
             static_cast<float>(std::max(area.getHeight(), 1)));
    AggregateGUIElement::Elements elements;
    for (const Row& row : rows_)
        elements.push_back(row.element);
    list_ = EngineRef<AggregateGUIElement>::adopt(
        new AggregateGUIElement(environment_, options, {}, elements, window_, area));
    auto* bar = new ScrollBar(environment_, 1.0f, false, -1, nullptr, LayoutWish(), window_, barPlace);
    bar->linkToScrollable(list_.get());
    bar->setVisible(list_->canScroll());
    bar->drop();
    bar_ = bar;
    list_->setScrollShare(scrolledTo);
    element("bload")->setEnabled(!chosen_.empty());
    element("bdeleteall")->setEnabled(!library_.list(folder_).empty());
    element("bexport")->setEnabled(library_.count("") > 0);
}

void LoadSaveSettingsDialog::makeRows(float share) {
    std::vector<Item> items = library_.list(folder_);
    if (!folder_.empty())
        items.insert(items.begin(), Item{"", true});
    for (const Item& item : items) {
        rows_.push_back(makeRow(item, share));
        rows_.back().element->setActive(!item.isFolder && item.name == chosen_);
    }
}

LoadSaveSettingsDialog::Row LoadSaveSettingsDialog::makeRow(const Item& item, float share) {
    Row row{item};
    const std::wstring text = item.name.empty() ? L"< Back" : decodeUtf8(item.name) + (item.isFolder ? L" /" : L"");
    BeautifulGUIText::Look look;
    look.color = item.isFolder ? folderColor : entryColor;
    AggregateGUIElement::Elements parts{
        new BeautifulGUIText(environment_, context_->getFlexibleFont(), text, look, LayoutWish{0.8f})};
    irr::gui::IGUIElement** const signs[] = {&row.rename, &row.bin};
    for (std::size_t i = 0; i < 2 && !item.name.empty(); ++i) {
        irr::gui::IGUIButton* button = environment_->addButton({0, 0, 1, 1});
        Skin::setButtonStyle(button, signStyles[i]);
        *signs[i] = button;
        parts.push_back(new AggregatableGUIElementAdapter(environment_, button, LayoutWish{0.1f}));
    }
    AggregateGUIElement::Options options;
    options.wish.recommendedSpace = share;
    options.horizontal = true;
    row.element = new AggregateGUIElement(environment_, options, parts, {});
    return row;
}

} // namespace skyvane
