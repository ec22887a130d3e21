#include "displays/PanelManager.h"

#include "chart/ExtendedChart.h"
#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/engine/ShowState.h"
#include "core/engine/TouchEvents.h"
#include "core/events/EventReceiver.h"
#include "core/text/Numbers.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/information/DetailsPanel.h"
#include "displays/panels/MessageBoxView.h"
#include "displays/panels/OverlayInstruments.h"
#include "gui/font/FlexibleFont.h"
#include "gui/hypertext/ManualWindow.h"
#include "gui/input/InputSystem.h"
#include "gui/menu/Menu.h"
#include "procedures/dialogs/SearchBoxHandler.h"
#include "terrain/TerrainManager.h"

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
    : context_(context), messageBox_(makeMessageBox(context)), targets_(context->getIrrlichtDevice()->getVideoDriver()),
      searchBox_(std::make_unique<SearchBoxHandler>(context)) {
    const PanelArea area = panelArea();
    fullRect_ = irr::core::rect<int>(0, area.top, area.width, area.bottom);
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

IPanelFactory* PanelManager::getPanelFactory(int index) const {
    const bool known = index >= 0 && index < static_cast<int>(factories_.size());
    return known ? factories_[static_cast<size_t>(index)].get() : nullptr;
}

PanelArea PanelManager::panelArea() const {
    return MenuBar::panelArea(context_->getScreenMetrics());
}

MessageSpace PanelManager::messageSpace() const {
    const PanelArea area = panelArea();
    const int buttonHeight = context_->getScreenMetrics().buttonHeight;
    const InputSystem* input = context_->getInputSystem();
    const int bottom = input ? std::min(area.bottom, input->getCoveredTop()) : area.bottom;
    return {area.width, bottom - buttonHeight, buttonHeight, claimed_};
}

void PanelManager::Render() {
    if (TerrainManager* terrain = getTerrainManager())
        terrain->Update();
    if (manual_)
        return;
    if (menu_)
        menu_->render(fullRect_);
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

void PanelManager::renderInMenuPreview() {
    if (menu_)
        menu_->renderInMenuPreview();
}

void PanelManager::RenderAfterGUI() {
    if (menu_)
        menu_->renderAfterGUI();
    if (!board_.isEmpty()) {
        if (const MessageBoard::Joined* joined = board_.collect(MilliSecs()))
            setMessage(joined->text, irr::video::SColor(messageBoxColor(joined->level)),
                       irr::video::SColor(messageTextColor), messageRenewalMilliseconds, false);
    }
    if (isMessageBoxShown())
        messageBox_->render();
    else
        messageBox_->letMousePass();
    if (overlays_)
        overlays_->render();
}

void PanelManager::renderPagePreview(irr::core::rect<int> rect, int pageOffset) {
    const int page = layout_.pageAt(currentPage_, pageOffset);
    const ScreenMetrics& screen = context_->getScreenMetrics();
    const double scaleX = static_cast<double>(rect.getWidth()) / std::max(1u, screen.width);
    const double scaleY = static_cast<double>(rect.getHeight()) / std::max(1u, screen.height);
    const auto scaled = [&](irr::core::vector2d<int> point) {
        return rect.UpperLeftCorner +
               irr::core::vector2d<int>(roundHalfAway(point.X * scaleX), roundHalfAway(point.Y * scaleY));
    };
    for (const LoadedPanel& loaded : panels_) {
        if (loaded.page != page)
            continue;
        irr::core::rect<int> place(scaled(loaded.rect.UpperLeftCorner), scaled(loaded.rect.LowerRightCorner));
        place.clipAgainst(rect);
        // A factory knows one panel's settings at a time.
        IPanelFactory* factory = loaded.panel->getFactory();
        factory->loadSetupFromIni(&loaded_, loaded.section);
        factory->renderPreview(place);
    }
}

bool PanelManager::processEvent(irr::SEvent event) {
    // The menu's answer may be to load the panels, and itself, anew.
    if (processEventOverDialog(event) || processManualEvent(event) || (menu_ && !menu_->processEvent(event)) ||
        processPageKey(event))
        return false;
    if (locked_ && isPointer(event))
        return false;
    if (event.EventType == irr::EET_MOUSE_INPUT_EVENT &&
        isVisibleGUIElementAt(irr::core::vector2d<int>(event.MouseInput.X, event.MouseInput.Y)))
        return false;
    return offerToPanels(event);
}

bool PanelManager::processEventOverDialog(const irr::SEvent& event) {
    return processMessageBoxEvent(event) || processOverlayEvent(event);
}

bool PanelManager::processMessageBoxEvent(const irr::SEvent& event) {
    if (!isMessageBoxShown() || event.EventType != irr::EET_MOUSE_INPUT_EVENT || !messageBox_->isVisible())
        return false;
    const MessageBox::Answer answer = messageBox_->processMouse(event.MouseInput);
    if (answer == MessageBox::Answer::Dismissed)
        board_.clear();
    return answer != MessageBox::Answer::NotMine;
}

bool PanelManager::processOverlayEvent(const irr::SEvent& event) {
    const bool isTap =
        overlays_ && event.EventType == irr::EET_MOUSE_INPUT_EVENT && overlays_->processMouse(event.MouseInput);
    if (isTap)
        keepManualClear();
    return isTap;
}

/// While the manual is open everything is its own.
bool PanelManager::processManualEvent(const irr::SEvent& event) {
    if (!manual_)
        return false;
    if (manual_->isClosedBy(event))
        closeManual();
    return true;
}

void PanelManager::closeManual() {
    manual_.reset();
    if (overlays_)
        overlays_->setManualOpen(false);
}

void PanelManager::setManualVisible(const std::string& page) {
    if (!manual_)
        manual_ = std::make_unique<ManualWindow>(context_, page);
    if (overlays_)
        overlays_->setManualOpen(true);
    keepManualClear();
}

/// Of the instruments that lie over it.
void PanelManager::keepManualClear() {
    if (manual_ && overlays_)
        manual_->keepClear(overlays_->getCoverOfManual());
}

void PanelManager::blockForManualExit() {
    const auto onEvent = [this](const irr::SEvent& event) { processManualEvent(event); };
    ModalLoop(*context_->getFrames(), {onEvent}).run([this] { return isManualVisible(); });
    closeManual();
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

void PanelManager::showPageWith(const std::string& panelName) {
    const auto found = std::find_if(panels_.begin(), panels_.end(),
                                    [&](const LoadedPanel& loaded) { return loaded.panel->getName() == panelName; });
    if (found != panels_.end() && found->page != currentPage_)
        turnPage(found->page - currentPage_);
}

void PanelManager::showDetails(int id) {
    showDetailsScreen(*context_, id);
}

void PanelManager::turnPage(int step) {
    showState(context_->getIrrlichtDevice(), L"Please wait...");
    fullScreenPanel_ = nullptr;
    clearNonMessageYArea();
    currentPage_ = layout_.pageAt(currentPage_, step);
    notePage();
    if (menu_)
        menu_->OnPageChange();
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

void PanelManager::drawPanelSeperator(const irr::core::rect<int>& panel, irr::video::SColor color) {
    context_->getDrawer()->drawOutline(panel, color);
}

void PanelManager::hideAllPanelGUI() {
    forEachPanel([](IPanel& panel) { panel.OnHideGUI(); });
}

void PanelManager::setMessage(const std::string& text, irr::video::SColor box, irr::video::SColor textColor,
                              int durationMilliseconds, bool close) {
    messageBox_->show(text, {box.color, textColor.color}, durationMilliseconds, close, messageSpace(),
                      isMessageBoxShown());
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

void PanelManager::setAttitudeIndicatorOverlay(bool visible, const irr::core::rect<int>* place) {
    if (overlays_)
        overlays_->show(OverlayPlaces::Attitude, visible, place);
}

void PanelManager::setCompassOverlay(bool visible, const irr::core::rect<int>* place) {
    if (overlays_)
        overlays_->show(OverlayPlaces::Compass, visible, place);
}

irr::scene::IMesh* PanelManager::getMeshHWMapped(const irr::core::string<char>& name) {
    irr::scene::ISceneManager* scene = context_->getIrrlichtDevice()->getSceneManager();
    if (irr::scene::IAnimatedMesh* known = scene->getMeshCache()->getMeshByName(name))
        return known->getMesh(0);
    irr::scene::IAnimatedMesh* loaded = scene->getMesh(name);
    irr::scene::IMesh* mesh = loaded ? loaded->getMesh(0) : nullptr;
    if (!mesh)
        return nullptr;
    for (irr::u32 i = 0; i < mesh->getMeshBufferCount(); ++i)
        mesh->getMeshBuffer(i)->setHardwareMappingHint(irr::scene::EHM_STATIC);
    mesh->setHardwareMappingHint(irr::scene::EHM_STATIC, irr::scene::EBT_VERTEX_AND_INDEX);
    return mesh;
}

void PanelManager::OnChartChanged() {
    forEachPanel([](IPanel& panel) { panel.OnChartChanged(); });
}

void PanelManager::OnProcedureChanged() {
    if (menu_)
        menu_->OnProcedureChanged();
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

IChart* PanelManager::getChart() const {
    return chart_.get();
}

TerrainManager* PanelManager::getTerrainManager() const {
    return chart_ ? chart_->getTerrainManager() : nullptr;
}

void PanelManager::OnMustFreeMemory() {
    if (chart_)
        chart_->OnMustFreeMemory();
    context_->getIrrlichtDevice()->getSceneManager()->getMeshCache()->clearUnusedMeshes();
    if (manual_)
        manual_->gotoPage(ManualWindow::startPage);
}

void PanelManager::applyOptimizedSettings(IPanel::OptimizedSettings settings) {
    forEachPanel([settings](IPanel& panel) { panel.applyOptimizedSettings(settings); });
}

std::string PanelManager::getIrrelevantAirspace(unsigned index) const {
    return index < irrelevantAirspaces_.size() ? irrelevantAirspaces_[index] : std::string();
}

} // namespace skyvane
