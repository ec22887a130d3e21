#include "core/events/EventReceiver.h"

#include "core/engine/ApplicationEvents.h"
#include "core/engine/EngineRef.h"
#include "core/engine/TouchEvents.h"
#include "core/events/IEventHost.h"
#include "core/time/Time.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

class Host : public IEventHost {
public:
    irr::IrrlichtDevice* getIrrlichtDevice() override { return device; }
    void OnScreenshotKey() override { ++screenshots; }
    void OnMustFreeMemory() override { ++memoryWarnings; }

    irr::IrrlichtDevice* device = nullptr;
    int screenshots = 0;
    int memoryWarnings = 0;
};

class Taker : public irr::IEventReceiver {
public:
    bool OnEvent(const irr::SEvent&) override {
        ++seen;
        return takes;
    }
    bool takes = false;
    int seen = 0;
};

irr::SEvent userEvent(int number) {
    irr::SEvent event{};
    event.EventType = irr::EET_USER_EVENT;
    event.UserEvent.UserData1 = number;
    return event;
}

irr::SEvent keyEvent(int code, bool down) {
    irr::SEvent event{};
    event.EventType = irr::EET_KEY_INPUT_EVENT;
    event.KeyInput.Key = static_cast<irr::EKEY_CODE>(code);
    event.KeyInput.PressedDown = down;
    return event;
}

irr::SEvent mouseEvent(int x, int y) {
    irr::SEvent event{};
    event.EventType = irr::EET_MOUSE_INPUT_EVENT;
    event.MouseInput.X = x;
    event.MouseInput.Y = y;
    event.MouseInput.Event = irr::EMIE_MOUSE_MOVED;
    return event;
}

irr::SEvent joystickEvent(int id, int axis) {
    irr::SEvent event{};
    event.EventType = irr::EET_JOYSTICK_INPUT_EVENT;
    event.JoystickEvent.Joystick = static_cast<irr::u8>(id);
    event.JoystickEvent.Axis[2] = static_cast<irr::s16>(axis);
    return event;
}

constexpr int BackKey = 0xA6;

class EventReceiverTest : public ::testing::Test {
protected:
    Host host;
    EventReceiver receiver{&host, 200};
};

/// With the engine's GUI on its null driver.
class EventReceiverGuiTest : public ::testing::Test {
protected:
    void SetUp() override {
        device = EngineRef<irr::IrrlichtDevice>::adopt(irr::createDevice(irr::video::EDT_NULL));
        ASSERT_TRUE(device);
        host.device = device.get();
        receiver = std::make_unique<EventReceiver>(&host, 200);
        device->setEventReceiver(receiver.get());
        gui = device->getGUIEnvironment();
    }
    void TearDown() override { device->setEventReceiver(nullptr); }

    EngineRef<irr::IrrlichtDevice> device;
    Host host;
    std::unique_ptr<EventReceiver> receiver;
    irr::gui::IGUIEnvironment* gui = nullptr;
};

} // namespace

TEST_F(EventReceiverTest, KeepsTheOrderOfArrival) {
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(receiver.OnEvent(userEvent(i)));
    EXPECT_EQ(0, receiver.getEvent().UserEvent.UserData1);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(i, receiver.popEvent().UserEvent.UserData1);
    EXPECT_FALSE(receiver.isEventAvailable());
}

TEST_F(EventReceiverTest, TheEventBeyondTheCapacityEmptiesTheQueueFirst) {
    for (int round = 0; round < 3; ++round) { // at different places of the ring
        for (int i = 0; i < 200; ++i)
            receiver.OnEvent(userEvent(i));
        EXPECT_EQ(200u, receiver.getEventQueue().size());
        receiver.OnEvent(userEvent(1000));
        ASSERT_EQ(1u, receiver.getEventQueue().size());
        EXPECT_EQ(1000, receiver.popEvent().UserEvent.UserData1);
        receiver.OnEvent(userEvent(1));
        receiver.popEvent();
    }
}

TEST_F(EventReceiverTest, SubReceiversAreAskedInOrderAndTheFirstTakerConsumes) {
    Taker first, second;
    second.takes = true;
    receiver.addSubEventReceiver(&first);
    receiver.addSubEventReceiver(&second);
    EXPECT_TRUE(receiver.OnEvent(userEvent(1)));
    EXPECT_EQ(1, first.seen);
    EXPECT_FALSE(receiver.isEventAvailable());

    first.takes = true;
    EXPECT_TRUE(receiver.OnEvent(userEvent(2)));
    EXPECT_EQ(1, second.seen);

    receiver.removeSubEventReceiver(&first);
    receiver.removeSubEventReceiver(&second);
    EXPECT_FALSE(receiver.OnEvent(userEvent(3)));
    EXPECT_EQ(2, first.seen);
    EXPECT_TRUE(receiver.isEventAvailable());
}

TEST_F(EventReceiverTest, MouseInsideTheBoxIsKeptFromTheGuiItsEdgesIncluded) {
    const irr::core::rect<int> box(10, 20, 30, 40);
    receiver.setNoMouseEventBox(&box);
    EXPECT_TRUE(receiver.OnEvent(mouseEvent(10, 20)));
    EXPECT_TRUE(receiver.OnEvent(mouseEvent(30, 40)));
    EXPECT_FALSE(receiver.OnEvent(mouseEvent(9, 20)));
    EXPECT_FALSE(receiver.OnEvent(mouseEvent(30, 41)));
    EXPECT_FALSE(receiver.OnEvent(userEvent(1)));
    EXPECT_EQ(5u, receiver.getEventQueue().size()) << "the queue gets them all";
    receiver.setNoMouseEventBox(nullptr);
    EXPECT_FALSE(receiver.OnEvent(mouseEvent(10, 20)));
}

TEST_F(EventReceiverTest, KeysAreNotedAndForeignCodesAreHarmless) {
    receiver.OnEvent(keyEvent(irr::KEY_KEY_A, true));
    EXPECT_TRUE(receiver.isKeyDown(irr::KEY_KEY_A));
    receiver.OnEvent(keyEvent(irr::KEY_KEY_A, false));
    EXPECT_FALSE(receiver.isKeyDown(irr::KEY_KEY_A));
    for (int code : {256, 70000, -1}) {
        receiver.OnEvent(keyEvent(code, true));
        EXPECT_FALSE(receiver.isKeyDown(static_cast<irr::EKEY_CODE>(code)));
    }
}

TEST_F(EventReceiverTest, InsertAsksForAPictureOnRelease) {
    receiver.OnEvent(keyEvent(irr::KEY_INSERT, true));
    EXPECT_EQ(0, host.screenshots);
    receiver.OnEvent(keyEvent(irr::KEY_INSERT, false));
    EXPECT_EQ(1, host.screenshots);
    EXPECT_EQ(2u, receiver.getEventQueue().size());
}

TEST_F(EventReceiverTest, AMemoryWarningIsActedOnAndGoesOn) {
    receiver.OnEvent(packApplicationEvent(ApplicationEvent::Unknown));
    EXPECT_EQ(0, host.memoryWarnings);
    receiver.OnEvent(packApplicationEvent(ApplicationEvent::MemoryWarning));
    EXPECT_EQ(1, host.memoryWarnings);
    EXPECT_EQ(2u, receiver.getEventQueue().size());
}

TEST_F(EventReceiverTest, JoysticksAreConsumedAndOnlyRealChangesCount) {
    ManualClock clock;
    setClock(&clock);
    irr::core::array<irr::SJoystickInfo> found;
    found.push_back(irr::SJoystickInfo{});
    found[0].Joystick = 7;
    found[0].Name = "Yoke";
    receiver.setJoysticks(found);
    ASSERT_EQ(1, receiver.getJoystickCount());
    EXPECT_TRUE(receiver.getJoystickInfo(0).Name == "Yoke");

    clock.advance(1.0);
    EXPECT_TRUE(receiver.OnEvent(joystickEvent(7, 500)));
    EXPECT_EQ(500, receiver.getJoystickStatus(0).Axis[2]);
    EXPECT_EQ(1000u, receiver.getLastJoystickUpdateTime(0));
    clock.advance(1.0);
    receiver.OnEvent(joystickEvent(7, 500));
    EXPECT_EQ(1000u, receiver.getLastJoystickUpdateTime(0));
    receiver.OnEvent(joystickEvent(7, 501));
    EXPECT_EQ(2000u, receiver.getLastJoystickUpdateTime(0));

    EXPECT_TRUE(receiver.OnEvent(joystickEvent(3, 9))) << "unknown ones are dropped";
    EXPECT_EQ(501, receiver.getJoystickStatus(0).Axis[2]);
    EXPECT_FALSE(receiver.isEventAvailable());
    EXPECT_EQ(0, receiver.getJoystickStatus(-1).Axis[2]);
    EXPECT_EQ(0u, receiver.getLastJoystickUpdateTime(1));
    setClock(nullptr);
}

TEST_F(EventReceiverGuiTest, TheBackKeyFirstLeavesAnEditBox) {
    irr::gui::IGUIEditBox* box = gui->addEditBox(L"text", {0, 0, 50, 20});
    irr::gui::IGUIButton* button = gui->addButton({0, 30, 50, 50});
    gui->setFocus(box);
    receiver->setBackButton(button);
    while (receiver->isEventAvailable())
        receiver->popEvent();

    EXPECT_FALSE(receiver->OnEvent(keyEvent(BackKey, true)));
    EXPECT_EQ(box, gui->getFocus());
    EXPECT_TRUE(receiver->OnEvent(keyEvent(BackKey, false)));
    EXPECT_EQ(nullptr, gui->getFocus());
    EXPECT_EQ(button, receiver->getBackButton());
}

TEST_F(EventReceiverGuiTest, TheBackKeyClicksAVisibleBackButtonOnce) {
    irr::gui::IGUIButton* button = gui->addButton({0, 30, 50, 50});
    receiver->setBackButton(button);
    EXPECT_TRUE(receiver->OnEvent(keyEvent(BackKey, false)));
    EXPECT_EQ(nullptr, receiver->getBackButton());
    ASSERT_EQ(1u, receiver->getEventQueue().size());
    const irr::SEvent click = receiver->popEvent();
    EXPECT_EQ(irr::EET_GUI_EVENT, click.EventType);
    EXPECT_EQ(irr::gui::EGET_BUTTON_CLICKED, click.GUIEvent.EventType);
    EXPECT_EQ(button, click.GUIEvent.Caller);
}

TEST_F(EventReceiverGuiTest, AHiddenOrRemovedBackButtonIsForgottenAndTheKeyGoesOn) {
    irr::gui::IGUIWindow* window = gui->addWindow({0, 0, 100, 100});
    irr::gui::IGUIButton* button = gui->addButton({0, 30, 50, 50}, window);
    window->setVisible(false);
    receiver->setBackButton(button);
    EXPECT_FALSE(receiver->OnEvent(keyEvent(BackKey, false)));
    EXPECT_EQ(nullptr, receiver->getBackButton());

    receiver->setBackButton(button);
    window->remove();
    EXPECT_FALSE(receiver->OnEvent(keyEvent(BackKey, false)));
    EXPECT_EQ(nullptr, receiver->getBackButton());
}

TEST_F(EventReceiverGuiTest, OwnKindsOfEventTravelTheEnginesRoadIntact) {
    TouchEvent touch;
    touch.id = 0xfffffff0u;
    touch.x = -5;
    touch.y = 70000;
    touch.touchCount = 2;
    touch.phase = TouchEvent::Moved;
    device->postEventFromUser(packTouchEvent(touch));
    ASSERT_EQ(1u, receiver->getEventQueue().size());
    const TouchEvent back = unpackTouchEvent(receiver->popEvent());
    EXPECT_EQ(touch.id, back.id);
    EXPECT_EQ(touch.x, back.x);
    EXPECT_EQ(touch.y, back.y);
    EXPECT_EQ(touch.touchCount, back.touchCount);
    EXPECT_EQ(touch.phase, back.phase);
}

} // namespace skyvane
