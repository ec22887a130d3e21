#include "displays/information/DetailsView.h"

#include "chart/elements/FrequencyRows.h"
#include "chart/elements/IChartElement.h"
#include "chart/names/RecentRing.h"
#include "chart/store/IChartElementSource.h"
#include "core/Context.h"
#include "core/text/Utf8.h"
#include "displays/PanelManager.h"
#include "displays/information/DetailsDocuments.h"
#include "gui/hypertext/CHyperTextElement.h"
#include "gui/skin/Skin.h"
#include "gui/windows/Help.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/Questions.h"
#include "gui/windows/WindowTools.h"
#include "procedures/dialogs/ElementSketch.h"
#include "procedures/dialogs/PreviewPane.h"
#include "procedures/dialogs/SearchBoxHandler.h"
#include "procedures/framework/IProcedure.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr const char* helpPage = "Details.hti";
constexpr const char* emptyText = "\\R\n\\T\"No element of the charts is chosen.\"\\n\n\\n\n";
constexpr size_t longestHead = 200;
constexpr const char* shownElements[] = {"lfrequencies"};
constexpr const char* searchElements[] = {"cdest", "edest", "brecent", "bnrst", "bcancel", "ldest", "tdistbearing"};

/// What the current procedure leads to.
int destinationOf(Context& context) {
    const IProcedure* procedure = context.getCurrentProcedure();
    return procedure->getLocationType() == ProcedureLocation::ChartElement ? procedure->getLocationChartIndex()
                                                                           : RecentRing::Empty;
}

/// A frequency is never cut, but the name before it.
std::wstring fitRow(irr::gui::IGUIFont* font, const std::wstring& row, int room) {
    const size_t gap = row.rfind(L"  ");
    if (!font || gap == std::wstring::npos)
        return row;
    const std::wstring figure = row.substr(gap);
    return fitText(font, row.substr(0, gap), room - static_cast<int>(font->getDimension(figure.c_str()).Width)) +
           figure;
}

} // namespace

DetailsView::DetailsView(Context& context, irr::gui::IGUIElement* parent, const irr::core::rect<int>& area,
                         int spareHeight)
    : context_(context), id_(RecentRing::Empty) {
    irr::gui::IGUIEnvironment* environment = context.getIrrlichtDevice()->getGUIEnvironment();
    container_ = EngineRef<irr::gui::IGUIElement>::share(environment->addTab(area, parent));
    IniFile document = readLayout(area.getWidth() > area.getHeight() ? detailsLandscapeLayout : detailsPortraitLayout);
    gui_ = std::make_unique<GUI>(environment, &document, windowArea(container_.get()), container_.get(), false);
    Skin::setButtonStyle(gui_->getElement("bcancel"), "redNormal");
    prepareHelpButton(&context, gui_->getElement("bhelp"), helpPage);
    sketch_ = EngineRef<irr::gui::IGUIElement>::share(
        PreviewPane::add(context, container_.get(), gui_->getSpecialRectangle("ssketch"),
                         [this](const irr::core::rect<int>& rect) { drawSketch(rect); }));
    irr::core::rect<int> textPlace = gui_->getSpecialRectangle("stext");
    irr::core::rect<int> listPlace = gui_->getElement("ldest")->getRelativePosition();
    textPlace.LowerRightCorner.Y -= spareHeight;
    listPlace.LowerRightCorner.Y -= spareHeight;
    gui_->getElement("ldest")->setRelativePosition(listPlace);
    text_ = EngineRef<CHyperTextElement>::adopt(
        new CHyperTextElement(context.getIrrlichtDevice(), textPlace, container_.get(), emptyText,
                              static_cast<int>(std::char_traits<char>::length(emptyText)), {}));
    text_->setFlexibleFont(context.getFlexibleFont());
    showDestination();
}

DetailsView::~DetailsView() {
    setSearchBoxEnabled(false);
    removeWindow(container_.get());
}

void DetailsView::setVisible(bool visible) {
    if (visible == isVisible())
        return;
    if (!visible)
        setSearchBoxEnabled(false);
    container_->setVisible(visible);
    updateVisibility();
}

bool DetailsView::isVisible() const {
    return container_->isVisible();
}

void DetailsView::updateVisibility() {
    for (const char* name : shownElements)
        gui_->getElement(name)->setVisible(!isSearching_);
    for (const char* name : searchElements)
        gui_->getElement(name)->setVisible(isSearching_);
    if (!isSearching_)
        gui_->getElement("thint")->setVisible(false);
    text_->setVisible(!isSearching_);
    sketch_->setVisible(!isSearching_);
}

void DetailsView::show(int id) {
    id_ = id;
    refresh();
}

void DetailsView::showDestination() {
    show(destinationOf(context_));
}

void DetailsView::refresh() {
    showTitle();
    showText();
    showFrequencies();
    updateVisibility();
}

IChartElement* DetailsView::element() const {
    IChartElementSource* charts = context_.getCharts();
    return charts && id_ != RecentRing::Empty ? charts->getChartElement(id_) : nullptr;
}

void DetailsView::showTitle() {
    const IChartElement* shown = isSearching_ ? nullptr : element();
    std::string title =
        shown ? shown->getIndicatedLabel(true, context_.getPanelManager()->isMetric()) : "Select ChartElement";
    std::replace(title.begin(), title.end(), '\n', ' '); // the button has one line
    irr::gui::IGUIElement* button = gui_->getElement("bselect");
    irr::gui::IGUIFont* font = context_.getSkin()->getFont();
    const int room = button->getAbsolutePosition().getWidth() - button->getAbsolutePosition().getHeight() / 2;
    skyvane::showText(button, font ? fitText(font, decodeUtf8(title), room).c_str() : decodeUtf8(title).c_str());
}

void DetailsView::showText() {
    const IChartElement* shown = element();
    const std::string page = shown ? shown->createHTI(context_.getPanelManager()->isMetric()) : emptyText;
    text_->setHTI(page.c_str(), static_cast<int>(page.size()));
}

void DetailsView::showFrequencies() {
    auto* list = gui_->get<irr::gui::IGUIListBox>("lfrequencies");
    list->clear();
    const IChartElement* shown = element();
    if (!shown)
        return;
    addFrequenciesToListbox(L"COM FREQUENCIES", frequencyRows(shown->getComFrequencies()));
    addFrequenciesToListbox(L"NAV FREQUENCIES", frequencyRows(shown->getNavFrequencies()));
}

void DetailsView::addFrequenciesToListbox(const wchar_t* heading, const std::vector<std::string>& rows) {
    if (rows.empty())
        return;
    auto* list = gui_->get<irr::gui::IGUIListBox>("lfrequencies");
    irr::gui::IGUIFont* font = context_.getSkin()->getFont();
    const int room = list->getAbsolutePosition().getWidth() - context_.getRecommendedButtonHeight();
    const auto width = [font](const std::wstring& text) {
        return static_cast<int>(font->getDimension(text.c_str()).Width);
    };
    std::wstring head = std::wstring(heading) + L" ";
    // A font may lack the dash: its width alone doesn't end this.
    while (font && head.size() < longestHead && width(head + L"-") < room)
        head += L'-';
    list->addItem(head.c_str());
    for (const std::string& row : rows)
        list->addItem(fitRow(font, decodeUtf8(row), room).c_str());
}

void DetailsView::drawSketch(const irr::core::rect<int>& rect) {
    if (IChartElement* shown = element())
        drawElementSketch(context_, shown, rect);
}

void DetailsView::setSearchBoxEnabled(bool enabled) {
    if (enabled == isSearching_)
        return;
    isSearching_ = enabled;
    SearchBoxHandler* search = context_.getPanelManager()->getSearchBoxHandler();
    if (enabled) {
        SearchBoxElements elements;
        elements.edit = gui_->get<irr::gui::IGUIEditBox>("edest");
        elements.list = gui_->get<irr::gui::IGUIListBox>("ldest");
        elements.text = gui_->getElement("tdistbearing");
        elements.hint = gui_->getElement("thint");
        elements.recent = gui_->getElement("brecent");
        elements.nearest = gui_->getElement("bnrst");
        search->init(element(), id_, elements);
    } else {
        search->release();
    }
    showTitle();
    updateVisibility();
}

void DetailsView::select() {
    SearchBoxHandler* search = context_.getPanelManager()->getSearchBoxHandler();
    const auto* destination = gui_->get<irr::gui::IGUICheckBox>("cdest");
    const int chosen = destination->isChecked() ? destinationOf(context_) : search->getSelectedChartElement();
    if (chosen == RecentRing::Empty)
        return tellInBox(context_, L"Error: No ChartElement selected.");
    if (!destination->isChecked())
        search->finish();
    setSearchBoxEnabled(false);
    show(chosen);
}

DetailsView::Action DetailsView::processEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_GUI_EVENT || !isVisible())
        return Action::None;
    gui_->Update(event.GUIEvent);
    if (isClickOf(event, gui_->getElement("bmaps")))
        return Action::Maps;
    if (isClickOf(event, gui_->getElement("bhelp")))
        showHelp(&context_, helpPage);
    else if (isClickOf(event, gui_->getElement("bcancel")))
        setSearchBoxEnabled(false);
    else if (isClickOf(event, gui_->getElement("bselect")))
        isSearching_ ? select() : setSearchBoxEnabled(true);
    else if (isSearching_)
        context_.getPanelManager()->getSearchBoxHandler()->processEvent(event);
    return Action::None;
}

irr::core::rect<int> DetailsView::getButtonRow() const {
    irr::core::rect<int> row = gui_->getElement("bselect")->getAbsolutePosition();
    row.addInternalPoint(gui_->getElement("bhelp")->getAbsolutePosition().LowerRightCorner);
    return row;
}

} // namespace skyvane
