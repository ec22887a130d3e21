#include "core/events/EventReceiver.h"

#include "core/engine/ApplicationEvents.h"
#include "core/events/IEventHost.h"
#include "core/time/Time.h"

#include <algorithm>
#include <cstring>

namespace skyvane {
namespace {

constexpr int BackKey = 0xA6;

bool isSameState(const irr::SEvent::SJoystickEvent& a, const irr::SEvent::SJoystickEvent& b) {
    return a.ButtonStates == b.ButtonStates && a.POV == b.POV && std::equal(a.Axis, a.Axis + a.NUMBER_OF_AXES, b.Axis);
}

bool isInTree(const irr::gui::IGUIElement* root, const irr::gui::IGUIElement* element) {
    if (root == element)
        return true;
    for (const irr::gui::IGUIElement* child : root->getChildren())
        if (isInTree(child, element))
            return true;
    return false;
}

} // namespace

EventReceiver::EventReceiver(IEventHost* host, unsigned capacity) : host_(host), queue_(capacity) {
    irr::core::array<irr::SJoystickInfo> joysticks;
    if (irr::IrrlichtDevice* device = host_->getIrrlichtDevice())
        device->activateJoysticks(joysticks);
    setJoysticks(joysticks);
}

EventReceiver::~EventReceiver() = default;

bool EventReceiver::OnEvent(const irr::SEvent& event) {
    if (event.EventType == irr::EET_JOYSTICK_INPUT_EVENT) {
        onJoystick(event.JoystickEvent);
        return true;
    }
    if (unpackApplicationEvent(event) == ApplicationEvent::MemoryWarning)
        host_->OnMustFreeMemory();
    if (event.EventType == irr::EET_KEY_INPUT_EVENT && onKey(event.KeyInput))
        return true;
    if (offerToSubReceivers(event))
        return true;
    if (event.EventType != irr::EET_LOG_TEXT_EVENT) // its text doesn't outlive this call
        queue_.push(event);
    return isInNoMouseBox(event);
}

void EventReceiver::addSubEventReceiver(irr::IEventReceiver* receiver) {
    subReceivers_.push_back(receiver);
}

void EventReceiver::removeSubEventReceiver(irr::IEventReceiver* receiver) {
    subReceivers_.erase(std::remove(subReceivers_.begin(), subReceivers_.end(), receiver), subReceivers_.end());
}

/// By index, since a receiver may add or remove one meanwhile.
bool EventReceiver::offerToSubReceivers(const irr::SEvent& event) {
    for (std::size_t i = 0; i < subReceivers_.size(); ++i)
        if (subReceivers_[i]->OnEvent(event))
            return true;
    return false;
}

bool EventReceiver::isInNoMouseBox(const irr::SEvent& event) const {
    return noMouseBox_ && event.EventType == irr::EET_MOUSE_INPUT_EVENT &&
           noMouseBox_->isPointInside(irr::core::position2di(event.MouseInput.X, event.MouseInput.Y));
}

void EventReceiver::setNoMouseEventBox(const irr::core::rect<int>* box) {
    if (box)
        noMouseBox_ = *box;
    else
        noMouseBox_.reset();
}

bool EventReceiver::isKeyDown(irr::EKEY_CODE key) const {
    const unsigned index = static_cast<unsigned>(key);
    return index < keys_.size() && keys_[index];
}

/// True when the event is consumed.
bool EventReceiver::onKey(const irr::SEvent::SKeyInput& key) {
    // Posted events can hold any number there, more than the enumeration's type may be read as.
    unsigned index = 0;
    static_assert(sizeof index == sizeof key.Key, "the code is read as its bytes");
    std::memcpy(&index, &key.Key, sizeof index);
    if (index < keys_.size())
        keys_[index] = key.PressedDown;
    if (key.PressedDown)
        return false;
    if (index == irr::KEY_INSERT)
        host_->OnScreenshotKey();
    return index == BackKey && onBackKey();
}

bool EventReceiver::onBackKey() {
    irr::IrrlichtDevice* device = host_->getIrrlichtDevice();
    irr::gui::IGUIEnvironment* gui = device ? device->getGUIEnvironment() : nullptr;
    irr::gui::IGUIElement* focus = gui ? gui->getFocus() : nullptr;
    if (focus && focus->getType() == irr::gui::EGUIET_EDIT_BOX) {
        gui->setFocus(nullptr);
        return true;
    }
    irr::gui::IGUIElement* button = backButton_;
    backButton_ = nullptr;
    if (button && isReachable(button)) {
        irr::SEvent click{};
        click.EventType = irr::EET_GUI_EVENT;
        click.GUIEvent.Caller = button;
        click.GUIEvent.EventType = irr::gui::EGET_BUTTON_CLICKED;
        device->postEventFromUser(click);
        return true;
    }
    if (gui)
        gui->setFocus(nullptr);
    return false;
}

/// Still in the GUI's tree, and visible with all its ancestors. The pointer is only followed when it was found there.
bool EventReceiver::isReachable(irr::gui::IGUIElement* element) const {
    irr::IrrlichtDevice* device = host_->getIrrlichtDevice();
    if (!device || !isInTree(device->getGUIEnvironment()->getRootGUIElement(), element))
        return false;
    for (const irr::gui::IGUIElement* it = element; it; it = it->getParent())
        if (!it->isVisible())
            return false;
    return true;
}

void EventReceiver::setJoysticks(const irr::core::array<irr::SJoystickInfo>& joysticks) {
    joysticks_.clear();
    for (irr::u32 i = 0; i < joysticks.size(); ++i)
        joysticks_.push_back(Joystick{joysticks[i], {}, 0});
}

void EventReceiver::onJoystick(const irr::SEvent::SJoystickEvent& event) {
    Joystick* joystick = findJoystick(event.Joystick);
    if (!joystick)
        return;
    if (!isSameState(joystick->state, event))
        joystick->lastChangeMilliseconds = MilliSecs();
    joystick->state = event;
}

EventReceiver::Joystick* EventReceiver::findJoystick(int id) {
    const auto found = std::find_if(joysticks_.begin(), joysticks_.end(),
                                    [id](const Joystick& joystick) { return joystick.info.Joystick == id; });
    return found == joysticks_.end() ? nullptr : &*found;
}

int EventReceiver::getJoystickCount() const {
    return static_cast<int>(joysticks_.size());
}

irr::SEvent::SJoystickEvent EventReceiver::getJoystickStatus(int index) const {
    return index >= 0 && index < getJoystickCount() ? joysticks_[index].state : irr::SEvent::SJoystickEvent{};
}

irr::SJoystickInfo EventReceiver::getJoystickInfo(int index) const {
    return index >= 0 && index < getJoystickCount() ? joysticks_[index].info : irr::SJoystickInfo{};
}

unsigned EventReceiver::getLastJoystickUpdateTime(int index) const {
    return index >= 0 && index < getJoystickCount() ? joysticks_[index].lastChangeMilliseconds : 0;
}

} // namespace skyvane
