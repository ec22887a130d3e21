#include "gui/menu/MenuColumn.h"

#include "core/Context.h"
#include "gui/elements/AggregatableGUIElementAdapter.h"
#include "gui/elements/AggregateGUIElement.h"
#include "gui/elements/ScrollBar.h"
#include "gui/menu/MenuBar.h"
#include "gui/menu/MenuPane.h"
#include "gui/menu/PlaybackRows.h"
#include "gui/skin/Skin.h"
#include "gui/windows/WindowTools.h"
#include "sensors/SensorManager.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;

int rowHeight(const ScreenMetrics& metrics) {
    return metrics.buttonHeight * 5 / 4;
}

std::vector<const MenuRow*> shownRows(Context& context) {
    std::vector<const MenuRow*> shown;
    for (const MenuRow& row : menuRows())
        if (!row.isShown || row.isShown(context))
            shown.push_back(&row);
    return shown;
}

int margin(const ScreenMetrics& metrics) {
    return std::max(2, metrics.buttonHeight / 8);
}

/// Above the bar, as high as the rows or as the screen has room.
Rect columnRect(const ScreenMetrics& metrics, int rows) {
    const PanelArea area = MenuBar::panelArea(metrics);
    const int wanted = rows * rowHeight(metrics) + 2 * margin(metrics);
    return {0, std::max(area.top, area.bottom - wanted), std::min(metrics.largeUnit, area.width), area.bottom};
}

} // namespace

MenuColumn::MenuColumn(Context* context, bool useColoredButtons)
    : context_(context), environment_(context->getIrrlichtDevice()->getGUIEnvironment()) {
    const ScreenMetrics& metrics = context_->getScreenMetrics();
    if (context_->getSensorManager()->getPrimarySeekableSensor())
        playback_ = std::make_unique<PlaybackRows>(context_);
    for (const MenuRow* row : shownRows(*context_))
        rows_.emplace_back(nullptr, row);
    const int count = static_cast<int>(rows_.size()) + (playback_ ? PlaybackRows::rowCount : 0);
    const Rect place = columnRect(metrics, count);
    pane_ = EngineRef<irr::gui::IGUIElement>::adopt(new MenuPane(environment_, MenuPane::Look::Window, place));

    const int edge = margin(metrics), bar = metrics.buttonHeight / 2;
    const int height = place.getHeight() - 2 * edge;
    const bool scrolls = height < count * rowHeight(metrics);
    AggregateGUIElement::Options options;
    options.scrollable = true;
    auto* list =
        new AggregateGUIElement(environment_, options, {}, {}, pane_.get(),
                                Rect(edge, edge, place.getWidth() - edge - (scrolls ? bar + edge : 0), edge + height));
    const float share = static_cast<float>(rowHeight(metrics)) / static_cast<float>(std::max(1, height));
    if (playback_)
        playback_->addTo(*list, share);
    addRows(*list, useColoredButtons, share);
    if (scrolls)
        addScrollBar(*list, bar);
    list->drop();
}

MenuColumn::~MenuColumn() {
    removeWindow(pane_.get());
}

void MenuColumn::addRows(AggregateGUIElement& list, bool useColoredButtons, float share) {
    for (auto& [button, row] : rows_) {
        button = environment_->addButton(Rect(0, 0, 1, 1), nullptr, -1, row->text);
        Skin::setButtonStyle(button, useColoredButtons ? row->coloredStyle : "stdRow");
        list.addSubElement(new AggregatableGUIElementAdapter(environment_, button, LayoutWish{share}), false);
    }
}

void MenuColumn::addScrollBar(AggregateGUIElement& list, int width) {
    const Rect place = list.getRelativePosition();
    const int left = place.LowerRightCorner.X + margin(context_->getScreenMetrics());
    auto* bar = new ScrollBar(environment_, 1.0f, false, -1, nullptr, LayoutWish(), pane_.get(),
                              Rect(left, place.UpperLeftCorner.Y, left + width, place.LowerRightCorner.Y));
    bar->linkToScrollable(&list);
    bar->drop();
}

const MenuRow* MenuColumn::clickedBy(const irr::SEvent& event) const {
    for (const auto& [button, row] : rows_)
        if (isClickOf(event, button))
            return row;
    return nullptr;
}

bool MenuColumn::processPlayback(const irr::SEvent& event) {
    return playback_ && playback_->processEvent(event);
}

void MenuColumn::update() {
    if (playback_)
        playback_->update();
}

void MenuColumn::setEnabled(bool enabled) {
    for (const auto& [button, row] : rows_)
        button->setEnabled(enabled);
}

} // namespace skyvane
