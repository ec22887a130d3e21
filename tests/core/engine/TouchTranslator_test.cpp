#include "core/engine/TouchTranslator.h"

#include "core/engine/TouchEvents.h"

#include <gtest/gtest.h>

namespace skyvane {

TEST(TouchTranslator, TheLeadingFingerAlsoMovesTheMouse) {
    TouchTranslator translator;
    auto events = translator.translate({RawTouch::Begin, 5, 100, 200, true});
    ASSERT_EQ(3u, events.count);
    const TouchEvent down = unpackTouchEvent(events.list[0]);
    EXPECT_EQ(TouchEvent::Pressed, down.phase);
    EXPECT_EQ(1, down.touchCount);
    EXPECT_EQ(irr::EMIE_MOUSE_MOVED, events.list[1].MouseInput.Event);
    EXPECT_FALSE(events.list[1].MouseInput.isLeftPressed());
    EXPECT_EQ(irr::EMIE_LMOUSE_PRESSED_DOWN, events.list[2].MouseInput.Event);
    EXPECT_EQ(100, events.list[2].MouseInput.X);
    EXPECT_EQ(200, events.list[2].MouseInput.Y);

    events = translator.translate({RawTouch::Update, 5, 101, 201, true});
    ASSERT_EQ(2u, events.count);
    EXPECT_TRUE(events.list[1].MouseInput.isLeftPressed());

    events = translator.translate({RawTouch::End, 5, 101, 201, true});
    ASSERT_EQ(2u, events.count);
    EXPECT_EQ(0, unpackTouchEvent(events.list[0]).touchCount);
    EXPECT_EQ(irr::EMIE_LMOUSE_LEFT_UP, events.list[1].MouseInput.Event);
}

TEST(TouchTranslator, FurtherFingersAreTouchesOnly) {
    TouchTranslator translator;
    translator.translate({RawTouch::Begin, 1, 0, 0, true});
    const auto events = translator.translate({RawTouch::Begin, 2, 10, 10, false});
    ASSERT_EQ(1u, events.count);
    EXPECT_EQ(2, unpackTouchEvent(events.list[0]).touchCount);
    translator.translate({RawTouch::End, 1, 0, 0, true});
    const auto last = translator.translate({RawTouch::End, 2, 0, 0, false});
    EXPECT_EQ(0, unpackTouchEvent(last.list[0]).touchCount);
}

TEST(TouchTranslator, IgnoresFingersThatNeverCameDownTwiceOrTooMany) {
    TouchTranslator translator;
    EXPECT_EQ(0u, translator.translate({RawTouch::Update, 9, 0, 0, true}).count);
    EXPECT_EQ(0u, translator.translate({RawTouch::End, 9, 0, 0, true}).count);
    EXPECT_EQ(1u, translator.translate({RawTouch::Begin, 0, 0, 0, false}).count);
    EXPECT_EQ(0u, translator.translate({RawTouch::Begin, 0, 0, 0, false}).count);
    for (unsigned id = 1; id < 32; ++id)
        EXPECT_EQ(1u, translator.translate({RawTouch::Begin, id, 0, 0, false}).count);
    EXPECT_EQ(0u, translator.translate({RawTouch::Begin, 40, 0, 0, false}).count);
    EXPECT_EQ(0u, translator.translate({RawTouch::End, 40, 0, 0, false}).count);
}

TEST(TouchEvents, AnyOtherEventGivesNoTouch) {
    irr::SEvent event{};
    event.EventType = irr::EET_MOUSE_INPUT_EVENT;
    EXPECT_FALSE(isTouchEvent(event));
    EXPECT_EQ(0u, unpackTouchEvent(event).id);
    event = packTouchEvent({});
    event.JoystickEvent.Axis[0] = -1; // whatever the bytes, the phase is one of the three
    event.JoystickEvent.POV = 0xffff;
    for (int i = 0; i < 6; ++i)
        event.JoystickEvent.Axis[i] = -1;
    EXPECT_LE(unpackTouchEvent(event).phase, TouchEvent::Left);
}

} // namespace skyvane
