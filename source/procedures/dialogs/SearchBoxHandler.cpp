#include "procedures/dialogs/SearchBoxHandler.h"

#include "chart/names/DestinationSearch.h"
#include "chart/store/IChart.h"
#include "core/Context.h"
#include "core/log/Logger.h"
#include "core/text/Utf8.h"
#include "displays/PanelManager.h"
#include "gui/skin/Skin.h"
#include "gui/windows/ListRows.h"
#include "gui/windows/WindowTools.h"
#include "procedures/ProcedureManager.h"
#include "procedures/framework/FlightReadings.h"
#include "procedures/framework/ProcedureOffer.h"

namespace skyvane {
namespace {

constexpr const char* RecentFile = "data/recent";
constexpr const char* NoChartsText = "No charts are installed.";

template <class Element>
EngineRef<Element> held(Element* element) {
    return EngineRef<Element>::share(element);
}

void fill(Context& context, irr::gui::IGUIListBox* list, const std::vector<std::string>& rows, int selected) {
    fillList(list, *context.getSkin(), decodeRows(rows));
    list->setSelected(selected);
}

bool isChoiceIn(const irr::SEvent& event, const irr::gui::IGUIElement* list) {
    const auto kind = event.GUIEvent.EventType;
    return list && event.GUIEvent.Caller == list &&
           (kind == irr::gui::EGET_LISTBOX_CHANGED || kind == irr::gui::EGET_LISTBOX_SELECTED_AGAIN);
}

bool isChangeOf(const irr::SEvent& event, const irr::gui::IGUIElement* element, irr::gui::EGUI_EVENT_TYPE kind) {
    return element && event.GUIEvent.Caller == element && event.GUIEvent.EventType == kind;
}

} // namespace

SearchBoxHandler::SearchBoxHandler(Context* context) : context_(context) {
    recent_.load(context->getPath(RecentFile));
}

void SearchBoxHandler::init(const IChartElement* element, int id, const SearchBoxElements& elements,
                            bool keepsProcedure) {
    held_ = {held(elements.edit),    held(elements.list),   held(elements.text),
             held(elements.hint),    held(elements.here),   held(elements.recent),
             held(elements.nearest), held(elements.direct), held(elements.procedures)};
    ids_.clear();
    lines_.clear();
    IChart* chart = context_->getPanelManager()->getChart();
    const IProcedure* current = context_->getProcedureManager()->getCurrentProcedure();
    if (!element && chart && current->getLocationType() == ProcedureLocation::ChartElement) {
        id = current->getLocationChartIndex();
        element = chart->getChartElement(id);
    }
    if (held_.edit) {
        const bool isNamed = element && element->getTrieInsertionNameCount() > 0;
        held_.edit->setText(isNamed ? decodeUtf8(element->getTrieInsertionName(0)).c_str() : L"");
        held_.edit->setEnabled(true);
    }
    for (irr::gui::IGUIListBox* list : {held_.list.get(), held_.procedures.get()})
        if (list)
            list->clear();
    if (keepsProcedure)
        previousId_ = element ? id : RecentRing::Empty;
    focusEdit();
    calculateDestination(element, id);
    calculateProcedures();
}

void SearchBoxHandler::release() {
    held_ = Held();
    ids_.clear();
    lines_.clear();
}

void SearchBoxHandler::focusEdit() {
    if (held_.edit)
        context_->getIrrlichtDevice()->getGUIEnvironment()->setFocus(held_.edit.get());
}

std::wstring SearchBoxHandler::typedText() const {
    return held_.edit ? held_.edit->getText() : L"";
}

bool SearchBoxHandler::isAtPresentPosition() const {
    return held_.here && held_.here->isChecked();
}

int SearchBoxHandler::getSelectedChartElement() const {
    const int row = held_.list ? held_.list->getSelected() : -1;
    return row >= 0 && row < static_cast<int>(ids_.size()) ? ids_[static_cast<size_t>(row)] : RecentRing::Empty;
}

IndicatedProcedure* SearchBoxHandler::getSelectedProcedure() {
    const int row = held_.procedures ? held_.procedures->getSelected() : -1;
    return row >= 0 && row < static_cast<int>(lines_.size()) ? &lines_[static_cast<size_t>(row)] : nullptr;
}

void SearchBoxHandler::calculateDestination(const IChartElement* element, int id) {
    IChart* chart = context_->getPanelManager()->getChart();
    DestinationSearch::Request request;
    request.text = encodeUtf8(typedText());
    request.ownPosition = readFlight(*context_->getSensorManager()).position;
    request.metric = context_->getPanelManager()->isMetric();
    request.isGiven = element != nullptr;
    request.givenId = id;
    std::optional<DestinationSearch::Rows> found;
    if (chart)
        found = DestinationSearch(*chart, [chart](const std::string& text, int limit) {
                    return chart->getMatchingChartElements(text, limit);
                }).find(request, recent_);
    if (found) {
        ids_.clear();
        std::vector<std::string> labels;
        for (const DestinationSearch::Row& row : found->rows) {
            ids_.push_back(row.id);
            labels.push_back(row.label);
        }
        if (held_.list)
            fill(*context_, held_.list.get(), labels, found->selected);
        calculateProcedures();
    }
    showHint();
}

void SearchBoxHandler::showHint() {
    if (!held_.hint)
        return;
    const bool isEmpty = ids_.empty();
    const bool hasCharts = context_->getPanelManager()->getChart() != nullptr;
    if (isEmpty) {
        const bool offersNearest = held_.nearest.get() != nullptr;
        const std::string text =
            hasCharts ? DestinationSearch::hintText(encodeUtf8(typedText()), offersNearest) : NoChartsText;
        showText(held_.hint.get(), decodeUtf8(text).c_str());
    }
    held_.hint->setVisible(isEmpty);
}

void SearchBoxHandler::calculateProcedures() {
    const bool isHere = isAtPresentPosition();
    const int id = isHere ? RecentRing::Empty : getSelectedChartElement();
    IChartElement* element = isHere ? nullptr : selectedElement();
    showDistance(element);
    ProcedureOffer offer;
    if (isHere || element)
        offer = offerProcedures(context_->getProcedureManager()->getProcedureFactories(), element, element ? id : 0);
    lines_ = std::move(offer.lines);
    std::vector<std::string> rows;
    for (const IndicatedProcedure& line : lines_)
        rows.push_back(line.text);
    if (!offer.error.empty())
        rows.push_back(offer.error);
    previousRow_ = selectLine(static_cast<int>(rows.size()), previousRow_, id == previousId_);
    previousId_ = id;
    if (held_.procedures)
        fill(*context_, held_.procedures.get(), rows, previousRow_);
}

void SearchBoxHandler::showDistance(const IChartElement* element) {
    if (!held_.text)
        return;
    std::optional<ChartPosition> destination;
    if (element)
        destination = element->getPosition();
    const std::string text =
        DestinationSearch::distanceText(readFlight(*context_->getSensorManager()).position, destination);
    showText(held_.text.get(), decodeUtf8(text).c_str());
}

bool SearchBoxHandler::processEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_GUI_EVENT)
        return false;
    if (isChangeOf(event, held_.edit.get(), irr::gui::EGET_EDITBOX_CHANGED))
        calculateDestination(nullptr, 0);
    else if (isChangeOf(event, held_.edit.get(), irr::gui::EGET_EDITBOX_ENTER))
        context_->getIrrlichtDevice()->getGUIEnvironment()->setFocus(held_.list.get());
    else if (isChoiceIn(event, held_.list.get()))
        calculateProcedures();
    else if (isChoiceIn(event, held_.procedures.get()))
        previousRow_ = held_.procedures->getSelected();
    else if (isChangeOf(event, held_.here.get(), irr::gui::EGET_CHECKBOX_CHANGED))
        onHereChanged();
    else if (isClickOf(event, held_.recent.get()))
        searchFor(DestinationSearch::RecentText);
    else if (isClickOf(event, held_.nearest.get()))
        searchFor(DestinationSearch::NearestText);
    else if (isClickOf(event, held_.direct.get()))
        return flyDirect();
    return false;
}

void SearchBoxHandler::searchFor(const char* text) {
    if (held_.edit)
        held_.edit->setText(decodeUtf8(text).c_str());
    calculateDestination(nullptr, 0);
}

void SearchBoxHandler::onHereChanged() {
    const bool isHere = isAtPresentPosition();
    for (irr::gui::IGUIElement* element :
         {static_cast<irr::gui::IGUIElement*>(held_.edit.get()), static_cast<irr::gui::IGUIElement*>(held_.list.get()),
          held_.direct.get(), held_.recent.get(), held_.nearest.get()})
        if (element)
            element->setEnabled(!isHere);
    if (!isHere)
        focusEdit();
    calculateProcedures();
}

/// Null without a selected row, and when the charts don't know it any more.
IChartElement* SearchBoxHandler::selectedElement() const {
    IChart* chart = context_->getPanelManager()->getChart();
    const int id = getSelectedChartElement();
    return chart && id != RecentRing::Empty ? chart->getChartElement(id) : nullptr;
}

/// Nobody flies to an airspace.
bool SearchBoxHandler::isDirectPossible() const {
    IProcedureFactory* factory = context_->getProcedureManager()->findProcedureFactorybyType(IProcedure::Direct);
    return factory && !isAtPresentPosition() && factory->areProceduresPossible(selectedElement());
}

bool SearchBoxHandler::flyDirect() {
    if (!isDirectPossible())
        return false;
    ProcedureManager* plan = context_->getProcedureManager();
    IProcedureFactory* factory = plan->findProcedureFactorybyType(IProcedure::Direct);
    IndicatedProcedure line{getSelectedChartElement(), factory->getName(), factory, {}};
    if (!factory->setup(line, selectedElement()))
        return false;
    plan->addProcedureAfterCurrent(factory->Create());
    plan->calculateCourseList();
    finish();
    return true;
}

void SearchBoxHandler::renderPreview(const irr::core::rect<int>& rect) {
    if (IndicatedProcedure* line = getSelectedProcedure())
        line->factory->renderPreview(line, rect);
}

void SearchBoxHandler::finish() {
    if (isAtPresentPosition() || !selectedElement())
        return;
    recent_.note(getSelectedChartElement());
    if (!recent_.save(context_->getPath(RecentFile)))
        logText("The recent destinations could not be saved.\n");
}

} // namespace skyvane
