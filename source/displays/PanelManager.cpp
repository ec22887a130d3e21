#include "displays/PanelManager.h"

#include "core/Context.h"
#include "core/engine/ShowState.h"
#include "core/engine/TouchEvents.h"
#include "core/events/EventReceiver.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/panels/MessageBoxView.h"
#include "gui/font/FlexibleFont.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr unsigned pageNumberMilliseconds = 2000;
constexpr uint32_t messageTextColor = 0xff000000;
constexpr int messageRenewalMilliseconds = 1000;

bool isPointer(const irr::SEvent& event) {
    return event.EventType == irr::EET_MOUSE_INPUT_EVENT || isTouchEvent(event);
}

std::unique_ptr<MessageBoxView> makeMessageBox(Context* context) {
    return std::make_unique<MessageBoxView>(context, [context](const irr::core::rect<int>* box) {
        if (EventReceiver* events = context->getEvents())
            events->setNoMouseEventBox(box);
    });
}

bool isVisibleAt(const irr::gui::IGUIElement* element, irr::core::vector2d<int> position) {
    if (!element->isVisible())
        return false;
    if (element->isPointInside(position))
        return true;
    for (const irr::gui::IGUIElement* child : element->getChildren())
        if (isVisibleAt(child, position))
            return true;
    return false;
}

} // namespace

PanelManager::PanelManager(Context* context)
    : context_(context), messageBox_(makeMessageBox(context)),
      targets_(context->getIrrlichtDevice()->getVideoDriver()) {
    const ScreenMetrics& metrics = context->getScreenMetrics();
    fullRect_ = irr::core::rect<int>(0, 0, static_cast<int>(metrics.width),
                                     static_cast<int>(metrics.height) - metrics.buttonHeight);
    clearNonMessageYArea();
    // Texts lie over the sprites that were drawn before them.
    Drawer2D* drawer = context->getDrawer();
    context->getFontManager()->setBeforeDraw([drawer] { drawer->flush(); });
}

PanelManager::~PanelManager() {
    unload();
    context_->getFontManager()->setBeforeDraw(nullptr);
}

void PanelManager::addPanelFactory(std::unique_ptr<IPanelFactory> factory) {
    factories_.push_back(std::move(factory));
}

PanelArea PanelManager::panelArea() const {
    const ScreenMetrics& metrics = context_->getScreenMetrics();
    return {static_cast<int>(metrics.width), 0, static_cast<int>(metrics.height)};
}

MessageSpace PanelManager::messageSpace() const {
    const PanelArea area = panelArea();
    const int buttonHeight = context_->getScreenMetrics().buttonHeight;
    return {area.width, area.bottom - buttonHeight, buttonHeight, claimed_};
}

void PanelManager::Render() {
    renderPage();
    renderPageNumber();
    context_->getDrawer()->resetViewPort();
}

void PanelManager::renderPage() {
    for (LoadedPanel& loaded : panels_) {
        if (loaded.page != currentPage_)
            continue;
        if (!fullScreenPanel_)
            loaded.panel->render(loaded.rect);
        else if (loaded.panel.get() == fullScreenPanel_)
            loaded.panel->render(fullRect_);
    }
}

void PanelManager::renderPageNumber() {
    const bool empty = std::none_of(panels_.begin(), panels_.end(),
                                    [this](const LoadedPanel& loaded) { return loaded.page == currentPage_; });
    if (!empty || !font_ || TimeDiff(MilliSecs(), pageTurnMilliseconds_) > pageNumberMilliseconds)
        return;
    context_->getDrawer()->resetViewPort();
    const PanelArea area = panelArea();
    font_->draw(pageNumber_, irr::core::rect<int>(0, area.top, area.width, area.bottom), irr::video::SColor(0xff808080),
                true, true);
}

void PanelManager::RenderAfterGUI() {
    if (!board_.isEmpty()) {
        if (const MessageBoard::Joined* joined = board_.collect(MilliSecs()))
            setMessage(joined->text, irr::video::SColor(messageBoxColor(joined->level)),
                       irr::video::SColor(messageTextColor), messageRenewalMilliseconds, false);
    }
    if (!messagesDisabled_)
        messageBox_->render();
}

void PanelManager::renderPagePreview(irr::core::rect<int> rect, int pageOffset) {
    const int page = layout_.pageAt(currentPage_, pageOffset);
    const PanelArea screen = panelArea();
    const double scaleX = static_cast<double>(rect.getWidth()) / std::max(1, screen.width);
    const double scaleY = static_cast<double>(rect.getHeight()) / std::max(1, screen.bottom);
    const auto scaled = [&](irr::core::vector2d<int> point) {
        return rect.UpperLeftCorner +
               irr::core::vector2d<int>(static_cast<int>(point.X * scaleX), static_cast<int>(point.Y * scaleY));
    };
    for (const LoadedPanel& loaded : panels_) {
        if (loaded.page == page)
            loaded.panel->getFactory()->renderPreview(
                {scaled(loaded.rect.UpperLeftCorner), scaled(loaded.rect.LowerRightCorner)});
    }
}

bool PanelManager::processEvent(irr::SEvent event) {
    if (processMessageBoxEvent(event) || processPageKey(event))
        return false;
    if (locked_ && isPointer(event))
        return false;
    if (event.EventType == irr::EET_MOUSE_INPUT_EVENT &&
        isVisibleGUIElementAt(irr::core::vector2d<int>(event.MouseInput.X, event.MouseInput.Y)))
        return false;
    return offerToPanels(event);
}

bool PanelManager::processMessageBoxEvent(const irr::SEvent& event) {
    if (messagesDisabled_ || event.EventType != irr::EET_MOUSE_INPUT_EVENT || !messageBox_->isVisible())
        return false;
    const MessageBox::Answer answer = messageBox_->processMouse(event.MouseInput);
    if (answer == MessageBox::Answer::Dismissed)
        board_.clear();
    return answer != MessageBox::Answer::NotMine;
}

bool PanelManager::processPageKey(const irr::SEvent& event) {
    if (event.EventType != irr::EET_KEY_INPUT_EVENT)
        return false;
    const irr::SEvent::SKeyInput& key = event.KeyInput;
    if (key.Key != irr::KEY_PRIOR && key.Key != irr::KEY_NEXT)
        return false;
    // On release: a key that is held repeats its press.
    if (!key.PressedDown)
        turnPage(key.Key == irr::KEY_NEXT ? 1 : -1);
    return true;
}

bool PanelManager::isVisibleGUIElementAt(irr::core::vector2d<int> position) {
    if (position == lastMousePosition_)
        return mouseOverGUI_;
    lastMousePosition_ = position;
    mouseOverGUI_ = false;
    irr::gui::IGUIElement* root = context_->getIrrlichtDevice()->getGUIEnvironment()->getRootGUIElement();
    for (const irr::gui::IGUIElement* element : root->getChildren())
        mouseOverGUI_ = mouseOverGUI_ || isVisibleAt(element, position);
    return mouseOverGUI_;
}

bool PanelManager::offerToPanels(const irr::SEvent& event) {
    for (size_t i = panels_.size(); i-- > 0;) {
        // A panel's answer may be to load the panels anew.
        if (i < panels_.size() && panels_[i].page == currentPage_ && !panels_[i].panel->processEvent(event))
            return false;
    }
    return true;
}

void PanelManager::nextPage() {
    turnPage(1);
}

void PanelManager::previousPage() {
    turnPage(-1);
}

void PanelManager::turnPage(int step) {
    showState(context_->getIrrlichtDevice(), L"Please wait...");
    fullScreenPanel_ = nullptr;
    clearNonMessageYArea();
    currentPage_ = layout_.pageAt(currentPage_, step);
    notePage();
    forEachPanel([](IPanel& panel) { panel.OnPageChange(); });
}

void PanelManager::notePage() {
    pageTurnMilliseconds_ = MilliSecs();
    pageNumber_ = irr::core::stringw(currentPage_ + 1) + L" / " + irr::core::stringw(layout_.pageCount);
}

void PanelManager::setFullScreenPanel(IPanel* panel) {
    if (panel) {
        hideAllPanelGUI();
        clearNonMessageYArea();
    }
    fullScreenPanel_ = panel;
}

void PanelManager::hideAllPanelGUI() {
    forEachPanel([](IPanel& panel) { panel.OnHideGUI(); });
}

void PanelManager::setMessage(const std::string& text, irr::video::SColor box, irr::video::SColor textColor,
                              int durationMilliseconds, bool close) {
    messageBox_->show(text, {box.color, textColor.color}, durationMilliseconds, close, messageSpace(),
                      !messagesDisabled_);
}

void PanelManager::setMessage(void* owner, const std::string& text, MESSAGECOLOR level, int timeoutMilliseconds) {
    board_.set(owner, text, level, timeoutMilliseconds, MilliSecs());
}

void PanelManager::removeMessage(void* owner) {
    board_.remove(owner);
}

void PanelManager::updateNonMessageYArea(int from, int to) {
    claimed_.from = std::min(claimed_.from, from);
    claimed_.to = std::max(claimed_.to, to);
}

void PanelManager::clearNonMessageYArea() {
    claimed_ = {static_cast<int>(context_->getScreenMetrics().height), 0};
}

irr::video::ITexture* PanelManager::requestRTT(void* owner, int id, int size) {
    return targets_.requestRTT(owner, id, size);
}

void PanelManager::removeRequest(irr::video::ITexture* texture, void* owner, int id) {
    targets_.removeRequest(texture, owner, id);
}

void PanelManager::OnChartChanged() {
    forEachPanel([](IPanel& panel) { panel.OnChartChanged(); });
}

void PanelManager::OnProcedureChanged() {
    forEachPanel([](IPanel& panel) { panel.OnProcedureChanged(); });
}

void PanelManager::OnFISDataChanged(bool changed) {
    forEachPanel([changed](IPanel& panel) { panel.OnFISDataChanged(changed); });
}

void PanelManager::OnProcedureNodesDelete() {
    forEachPanel([](IPanel& panel) { panel.OnProcedureNodesDelete(); });
}

void PanelManager::OnProcedureMeshExchanged() {
    forEachPanel([](IPanel& panel) { panel.OnProcedureMeshExchanged(); });
}

void PanelManager::OnTerrainNodesDelete() {
    forEachPanel([](IPanel& panel) { panel.OnTerrainNodesDelete(); });
}

void PanelManager::OnTerrainMeshExchanged() {
    forEachPanel([](IPanel& panel) { panel.OnTerrainMeshExchanged(); });
}

void PanelManager::OnWideTerrainNodesDelete() {
    forEachPanel([](IPanel& panel) { panel.OnWideTerrainNodesDelete(); });
}

void PanelManager::OnWideTerrainMeshExchanged() {
    forEachPanel([](IPanel& panel) { panel.OnWideTerrainMeshExchanged(); });
}

void PanelManager::applyOptimizedSettings(IPanel::OptimizedSettings settings) {
    forEachPanel([settings](IPanel& panel) { panel.applyOptimizedSettings(settings); });
}

std::string PanelManager::getIrrelevantAirspace(unsigned index) const {
    return index < irrelevantAirspaces_.size() ? irrelevantAirspaces_[index] : std::string();
}

} // namespace skyvane
