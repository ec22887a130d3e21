#pragma once

#include "core/events/EventQueue.h"

#include <array>
#include <irrlicht.h>
#include <optional>
#include <vector>

namespace skyvane {

class IEventHost;

/// An engine receiver that offers each event to further receivers first.
class IMultiEventReceiver : public irr::IEventReceiver {
public:
    /// Not owned; a receiver removes itself before it goes.
    virtual void addSubEventReceiver(irr::IEventReceiver* receiver) = 0;
    virtual void removeSubEventReceiver(irr::IEventReceiver* receiver) = 0;
};

/// Takes the engine's events into a queue that the frame empties; handles screenshots, the back key, joysticks and
/// memory warnings on the way. Main thread only.
class EventReceiver : public IMultiEventReceiver {
public:
    /// The host outlives the receiver. Joysticks are looked for once, here.
    EventReceiver(IEventHost* host, unsigned capacity);
    ~EventReceiver() override;

    bool OnEvent(const irr::SEvent& event) override;
    void addSubEventReceiver(irr::IEventReceiver* receiver) override;
    void removeSubEventReceiver(irr::IEventReceiver* receiver) override;

    bool isEventAvailable() const { return !queue_.empty(); }
    irr::SEvent getEvent() const { return queue_.front(); }
    irr::SEvent popEvent() { return queue_.pop(); }
    EventQueue& getEventQueue() { return queue_; }

    bool isKeyDown(irr::EKEY_CODE key) const;
    /// Replaces the joysticks that were found at construction; their states start anew.
    void setJoysticks(const irr::core::array<irr::SJoystickInfo>& joysticks);
    int getJoystickCount() const;
    /// Default-made for an index out of range.
    irr::SEvent::SJoystickEvent getJoystickStatus(int index) const;
    irr::SJoystickInfo getJoystickInfo(int index) const;
    /// MilliSecs() of the last real change.
    unsigned getLastJoystickUpdateTime(int index) const;

    /// Mouse events inside go to the queue, but not to the GUI. Null turns the box off.
    void setNoMouseEventBox(const irr::core::rect<int>* box);
    /// The button that the back key clicks; null for none. Not owned: it is looked up in the GUI before use.
    void setBackButton(irr::gui::IGUIElement* button) { backButton_ = button; }
    irr::gui::IGUIElement* getBackButton() const { return backButton_; }

private:
    struct Joystick {
        irr::SJoystickInfo info;
        irr::SEvent::SJoystickEvent state;
        unsigned lastChangeMilliseconds;
    };

    void onJoystick(const irr::SEvent::SJoystickEvent& event);
    bool onKey(const irr::SEvent::SKeyInput& key);
    bool onBackKey();
    bool isReachable(irr::gui::IGUIElement* element) const;
    bool offerToSubReceivers(const irr::SEvent& event);
    bool isInNoMouseBox(const irr::SEvent& event) const;
    Joystick* findJoystick(int id);

    IEventHost* host_;
    EventQueue queue_;
    std::vector<irr::IEventReceiver*> subReceivers_;
    std::vector<Joystick> joysticks_;
    std::array<bool, 256> keys_{};
    std::optional<irr::core::rect<int>> noMouseBox_;
    irr::gui::IGUIElement* backButton_ = nullptr;
};

} // namespace skyvane
