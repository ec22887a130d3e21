#include "gui/menu/PlaybackRows.h"

#include "core/Context.h"
#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "gui/elements/AggregatableGUIElementAdapter.h"
#include "gui/elements/AggregateGUIElement.h"
#include "gui/elements/ScrollBar.h"
#include "gui/skin/Skin.h"
#include "gui/windows/WindowTools.h"
#include "sensors/SensorManager.h"

#include <algorithm>
#include <cwchar>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;
const Rect laidOutLater(0, 0, 1, 1);
constexpr int integerEditId = -1;
constexpr int largestSpeed = 9999;

AggregateGUIElement* makeRow(irr::gui::IGUIEnvironment* environment, float share,
                             const AggregateGUIElement::Elements& elements) {
    AggregateGUIElement::Options options;
    options.wish.recommendedSpace = share;
    options.horizontal = true;
    return new AggregateGUIElement(environment, options, elements, {});
}

} // namespace

PlaybackRows::PlaybackRows(Context* context)
    : context_(context), environment_(context->getIrrlichtDevice()->getGUIEnvironment()) {}

PlaybackRows::~PlaybackRows() {
    if (bar_)
        bar_->unlinkScrollable();
}

void PlaybackRows::addTo(AggregateGUIElement& list, float share) {
    irr::gui::IGUIStaticText* label = environment_->addStaticText(L"Playback Options:", laidOutLater);
    label->setTextAlignment(irr::gui::EGUIA_CENTER, irr::gui::EGUIA_CENTER);
    list.addSubElement(new AggregatableGUIElementAdapter(environment_, label, LayoutWish{share}), false);
    list.addSubElement(buttonRow(share), false);
    list.addSubElement(placeRow(share), false);
    update();
}

irr::gui::IGUIButton* PlaybackRows::addButton(const wchar_t* label) {
    irr::gui::IGUIButton* button = environment_->addButton(laidOutLater, nullptr, -1, label);
    Skin::setButtonStyle(button, "stdRow");
    return button;
}

IAggregatableGUIElement* PlaybackRows::buttonRow(float share) {
    loop_ = EngineRef<irr::gui::IGUIButton>::share(addButton(L"Loop"));
    loop_->setIsPushButton(true);
    Skin::setButtonStyle(loop_.get(), "greenVis");
    stop_ = EngineRef<irr::gui::IGUIButton>::share(addButton(L"Stop"));
    play_ = EngineRef<irr::gui::IGUIButton>::share(addButton(L"Play"));
    return makeRow(environment_, share,
                   {new AggregatableGUIElementAdapter(environment_, loop_.get()),
                    new AggregatableGUIElementAdapter(environment_, stop_.get()),
                    new AggregatableGUIElementAdapter(environment_, play_.get())});
}

IAggregatableGUIElement* PlaybackRows::placeRow(float share) {
    wchar_t speed[16];
    std::swprintf(speed, sizeof speed / sizeof *speed, L"%04d",
                  std::clamp(roundHalfAway(context_->getSensorManager()->getPlaybackSpeed()), 1, largestSpeed));
    speed_ = EngineRef<irr::gui::IGUIEditBox>::share(
        environment_->addEditBox(speed, laidOutLater, true, nullptr, integerEditId));
    speed_->setMax(4);
    auto* bar = new ScrollBar(environment_, 0.1f, true, -1, nullptr, LayoutWish{2.0f});
    bar->linkToScrollable(this);
    return makeRow(environment_, share, {new AggregatableGUIElementAdapter(environment_, speed_.get()), bar});
}

bool PlaybackRows::processEvent(const irr::SEvent& event) {
    SensorManager* sensors = context_->getSensorManager();
    if (isClickOf(event, loop_.get()))
        sensors->setPlaybackLoop(loop_->isPressed());
    else if (isClickOf(event, stop_.get()))
        sensors->setPlaybackState(SensorManager::PLAYBACK_STOP);
    else if (isClickOf(event, play_.get()))
        sensors->setPlaybackState(sensors->getPlaybackState() == SensorManager::PLAYBACK_PLAY
                                      ? SensorManager::PLAYBACK_PAUSE
                                      : SensorManager::PLAYBACK_PLAY);
    else if (event.EventType == irr::EET_GUI_EVENT && event.GUIEvent.Caller == speed_.get() &&
             event.GUIEvent.EventType == irr::gui::EGET_EDITBOX_CHANGED)
        takeSpeed();
    else
        return false;
    return true;
}

/// Whole times of real time; nothing changes while the box holds no such number.
void PlaybackRows::takeSpeed() {
    const int speed = toInt(encodeUtf8(speed_->getText()));
    if (speed > 0)
        context_->getSensorManager()->setPlaybackSpeed(static_cast<float>(std::min(speed, largestSpeed)));
}

void PlaybackRows::update() {
    SensorManager* sensors = context_->getSensorManager();
    const bool plays = sensors->getPlaybackState() == SensorManager::PLAYBACK_PLAY;
    showText(play_.get(), plays ? L"Pause" : L"Play");
    if (loop_->isPressed() != sensors->getPlaybackLoop())
        loop_->setPressed(sensors->getPlaybackLoop());
    if (ISeekableSensor* sensor = sensors->getPrimarySeekableSensor(); sensor && bar_)
        bar_->setPos(sensor->getPlayPosition(), false);
}

void PlaybackRows::setScrollShare(float share) {
    if (ISeekableSensor* sensor = context_->getSensorManager()->getPrimarySeekableSensor())
        sensor->setPlayPosition(share);
}

} // namespace skyvane
