#include "displays/information/CheckListPanel.h"

#include "core/Context.h"
#include "core/text/Utf8.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/information/CheckListDocuments.h"
#include "displays/information/CheckListItems.h"
#include "gui/skin/Skin.h"
#include "gui/windows/Help.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/WindowTools.h"
#include "procedures/aircraft/AircraftEditor.h"
#include "procedures/aircraft/AircraftManager.h"

namespace skyvane {

namespace {

constexpr const char* helpPage = "CheckList.hti";
const irr::video::SColor groundColor(0xff1d242c);
constexpr size_t longestName = 100; ///< Letters that are looked at when a name is fitted into its box.

bool isChange(const irr::SEvent& event, const irr::gui::IGUIElement* box) {
    return event.GUIEvent.EventType == irr::gui::EGET_COMBO_BOX_CHANGED && event.GUIEvent.Caller == box;
}

const char* layoutFor(const irr::core::rect<int>& rect, int buttonHeight) {
    if (rect.getWidth() <= rect.getHeight())
        return checkListPanelPortraitLayout;
    return 2 * rect.getHeight() < 11 * buttonHeight ? checkListPanelFlatLayout : checkListPanelLandscapeLayout;
}

} // namespace

CheckListPanel::CheckListPanel(Context* context) : IPanel(context) {}

CheckListPanel::~CheckListPanel() {
    removeGUI();
}

void CheckListPanel::removeGUI() {
    removeWindow(container_.get());
    items_.reset();
    gui_.reset();
    container_.reset();
}

void CheckListPanel::OnHideGUI() {
    if (container_)
        container_->setVisible(false);
}

void CheckListPanel::makeGUI(const irr::core::rect<int>& rect) {
    removeGUI();
    rect_ = rect;
    irr::gui::IGUIEnvironment* environment = context_->getIrrlichtDevice()->getGUIEnvironment();
    container_ = EngineRef<irr::gui::IGUIElement>::share(environment->addTab(rect, nullptr));
    IniFile document = readLayout(layoutFor(rect, context_->getRecommendedButtonHeight()));
    gui_ = std::make_unique<GUI>(environment, &document, windowArea(container_.get()), container_.get(), false);
    items_ = EngineRef<CheckListItems>::share(
        CheckListItems::add(*context_, container_.get(), gui_->getSpecialRectangle("sitems")));
    prepareHelpButton(context_, gui_->getElement("bhelp"), helpPage);
    hideCutLabels();
    currentAircraft_ = context_->getAircraftManager()->getCurrentAircraftIndex();
    revision_ = context_->getAircraftManager()->getRevision();
    fillAircraftBox(currentAircraft_);
    fillCheckListBox();
    fillCheckListViewBox();
}

/// In a panel that is too small for them the boxes speak for themselves.
void CheckListPanel::hideCutLabels() {
    irr::gui::IGUIFont* font = context_->getSkin()->getFont();
    for (const char* id : {"tlist", "taircraft"}) {
        irr::gui::IGUIElement* label = gui_->getElement(id);
        const int wanted = font ? static_cast<int>(font->getDimension(label->getText()).Width) : 0;
        label->setVisible(wanted <= label->getAbsolutePosition().getWidth());
    }
}

void CheckListPanel::render(irr::core::rect<int> rect) {
    if (!container_ || rect != rect_)
        makeGUI(rect);
    followAircraft();
    Drawer2D* drawer = context_->getDrawer();
    drawer->resetViewPort();
    drawer->drawFilledRect(rect, groundColor);
    if (!container_->isVisible())
        container_->setVisible(true);
    showProgress();
}

void CheckListPanel::showProgress() {
    const CheckListProgress& progress = items_->getProgress();
    if (progress.getDoneCount() == shownDone_)
        return;
    shownDone_ = progress.getDoneCount();
    gui_->getElement("tprogress")->setText(progress.describe().c_str());
}

Aircraft* CheckListPanel::aircraft() const {
    return context_->getAircraftManager()->getAircraft(box("caircraft")->getSelected());
}

void CheckListPanel::followAircraft() {
    AircraftManager& aircrafts = *context_->getAircraftManager();
    if (revision_ == aircrafts.getRevision())
        return;
    revision_ = aircrafts.getRevision();
    const int list = box("clist")->getSelected();
    const bool isOther = currentAircraft_ != aircrafts.getCurrentAircraftIndex();
    const int shown = box("caircraft")->getSelected();
    currentAircraft_ = aircrafts.getCurrentAircraftIndex();
    fillAircraftBox(isOther || !aircrafts.getAircraft(shown) ? currentAircraft_ : shown);
    fillCheckListBox();
    if (!isOther && list >= 0 && aircraft()->getCheckList(list)) {
        box("clist")->setSelected(list);
        items_->update(aircraft()->getCheckList(list)->lines);
        shownDone_ = -1;
    } else {
        fillCheckListViewBox();
    }
}

void CheckListPanel::fillBox(irr::gui::IGUIComboBox* box, const std::vector<std::string>& names) const {
    irr::gui::IGUIFont* font = context_->getSkin()->getFont();
    const int room = box->getAbsolutePosition().getWidth() - 3 * box->getAbsolutePosition().getHeight() / 2;
    box->clear();
    for (const std::string& name : names) {
        const std::wstring shown = decodeUtf8(name).substr(0, longestName);
        box->addItem(shown.empty() ? L"(no name)" : fitText(font, shown, room).c_str());
    }
}

void CheckListPanel::fillAircraftBox(int selected) {
    AircraftManager& aircrafts = *context_->getAircraftManager();
    std::vector<std::string> names;
    for (int i = 0; i < aircrafts.getAircraftCount(); ++i)
        names.push_back(aircrafts.getAircraft(i)->name);
    fillBox(box("caircraft"), names);
    box("caircraft")->setSelected(selected);
}

void CheckListPanel::fillCheckListBox() {
    std::vector<std::string> names;
    for (const CheckList& list : aircraft()->checklists)
        names.push_back(list.name);
    fillBox(box("clist"), names);
    box("clist")->setSelected(names.empty() ? -1 : 0);
    for (const char* id : {"bedit", "bremove"})
        gui_->getElement(id)->setEnabled(!names.empty());
}

void CheckListPanel::fillCheckListViewBox() {
    const CheckList* list = aircraft()->getCheckList(box("clist")->getSelected());
    items_->begin(list ? list->lines : std::list<std::string>());
    shownDone_ = -1;
}

void CheckListPanel::select(int checkList) {
    fillCheckListBox();
    if (aircraft()->getCheckList(checkList))
        box("clist")->setSelected(checkList);
    fillCheckListViewBox();
    revision_ = context_->getAircraftManager()->getRevision();
}

bool CheckListPanel::processEvent(irr::SEvent event) {
    if (event.EventType != irr::EET_GUI_EVENT || !container_ || !container_->isVisible())
        return true;
    followAircraft();
    gui_->Update(event.GUIEvent);
    if (isChange(event, box("caircraft"))) {
        fillCheckListBox();
        fillCheckListViewBox();
    } else if (isChange(event, box("clist"))) {
        fillCheckListViewBox();
    } else {
        onClick(event);
    }
    return true;
}

void CheckListPanel::onClick(const irr::SEvent& event) {
    if (isClickOf(event, gui_->getElement("bnew")))
        makeCheckList();
    else if (isClickOf(event, gui_->getElement("bedit")))
        editSelected();
    else if (isClickOf(event, gui_->getElement("bremove")))
        removeSelected();
    else if (isClickOf(event, gui_->getElement("bhelp")))
        showHelp(context_, helpPage);
}

void CheckListPanel::makeCheckList() {
    const int index = addCheckList(*context_, *context_->getAircraftManager(), box("caircraft")->getSelected());
    if (index >= 0)
        select(index);
}

void CheckListPanel::editSelected() {
    const int index = box("clist")->getSelected();
    if (editCheckList(*context_, *context_->getAircraftManager(), box("caircraft")->getSelected(), index))
        select(index);
}

void CheckListPanel::removeSelected() {
    const int index = box("clist")->getSelected();
    if (removeCheckList(*context_, *context_->getAircraftManager(), box("caircraft")->getSelected(), index))
        select(0);
}

} // namespace skyvane
