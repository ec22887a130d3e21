#include "gui/input/InputSystem.h"

#include "../windows/DialogFixture.h"
#include "core/engine/TouchEvents.h"
#include "core/engine/TouchTranslator.h"
#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "gui/keys/EditBoxId.h"
#include "gui/keys/KeyCodes.h"
#include "gui/keys/KeyboardLayout.h"
#include "gui/windows/EditBoxDialog.h"
#include "support/AllocationCounter.h"

#include <random>

namespace skyvane {
namespace {

using irr::core::position2di;
using irr::core::recti;

/// Edit boxes in the real program's frames, and fingers on the keys.
class InputSystemTest : public DialogFixture {
protected:
    enum Keyboard { Text = 0, Numbers = 1 };

    void SetUp() override {
        DialogFixture::SetUp();
        if (!context)
            return;
        input = context->getInputSystem();
        screen = {static_cast<int>(GetParam().Width), static_cast<int>(GetParam().Height)};
        setClock(&clock);
    }
    void TearDown() override {
        setClock(nullptr);
        DialogFixture::TearDown();
    }

    void frame(int count = 1) {
        for (int i = 0; i < count; ++i)
            frames->runFrame(nullptr);
    }
    /// In the upper part of the screen.
    irr::gui::IGUIEditBox* addBox(int id, const wchar_t* text) {
        irr::gui::IGUIEditBox* box =
            environment->addEditBox(text, recti(10, 10, screen.Width / 2, 60), true, nullptr, id);
        box->setMultiLine(id == MultilineEdit);
        return box;
    }
    void press(position2di place) { post(irr::EMIE_LMOUSE_PRESSED_DOWN, place); }
    void move(position2di place) { post(irr::EMIE_MOUSE_MOVED, place); }
    void release(position2di place) { post(irr::EMIE_LMOUSE_LEFT_UP, place); }
    void focus(irr::gui::IGUIElement* box) {
        clickAt(box->getAbsolutePosition().getCenter());
        frame();
    }
    position2di keyAt(Keyboard which, const std::function<bool(const KeyDefinition&)>& isIt) {
        const KeyboardDefinition& definition = keyBoardDefs.at(which);
        const KeyboardLayout layout = layOutKeyboard(definition, screen, context->getRecommendedButtonHeight());
        std::size_t place = 0;
        for (const auto& row : definition.rows)
            for (const KeyDefinition& key : row) {
                if (isIt(key))
                    return layout.keys[place].getCenter();
                ++place;
            }
        ADD_FAILURE() << "no such key";
        return {};
    }
    position2di keyOf(Keyboard which, wchar_t character) {
        return keyAt(which, [character](const KeyDefinition& key) { return key.character == character; });
    }
    position2di keyOf(Keyboard which, KeyCode code) {
        return keyAt(which, [code](const KeyDefinition& key) { return key.keyCode == code; });
    }
    void type(Keyboard which, const std::wstring& text) {
        for (const wchar_t character : text)
            clickAt(keyOf(which, character));
    }
    void touch(unsigned id, RawTouch::Kind kind, position2di place, bool emulatesPointer) {
        const TouchTranslator::Events events = translator.translate({kind, id, place.X, place.Y, emulatesPointer});
        for (std::size_t i = 0; i < events.count; ++i)
            gl.device()->postEventFromUser(events.list[i]);
    }
    void change() {
        clickAt(input->getChangeRect().getCenter());
        frame();
    }

    ManualClock clock;
    InputSystem* input = nullptr;
    irr::core::dimension2di screen;
    TouchTranslator translator;
};

} // namespace

TEST_P(InputSystemTest, TextIsTypedBehindTheFormerWithShiftForOneKey) {
    irr::gui::IGUIEditBox* box = addBox(StringEdit, L"ab");
    EXPECT_EQ(screen.Height, input->getCoveredTop());
    focus(box);
    EXPECT_LT(input->getCoveredTop(), screen.Height);
    type(Text, L"q5 ");
    clickAt(keyOf(Text, ShiftKey));
    frame(8);
    picture("keyboard-shift");
    type(Text, L"55");
    EXPECT_STREQ(L"abq5 /5", box->getText());
    clickAt(keyOf(Text, BackspaceKey));
    clickAt(keyOf(Text, LeftKey));
    type(Text, L"x");
    clickAt(keyOf(Text, RightKey));
    type(Text, L"y");
    clickAt(keyOf(Text, EnterKey));
    frame();
    EXPECT_STREQ(L"abq5 x/y", box->getText());
    EXPECT_EQ(screen.Height, input->getCoveredTop()) << "the line is finished";
    focus(box);
    frame(8);
    picture("keyboard-text");
}

TEST_P(InputSystemTest, TheFirstDigitReplacesTheNumber) {
    for (const int id : {IntegerEdit, DecimalEdit}) {
        irr::gui::IGUIEditBox* box = addBox(id, L"1234");
        focus(box);
        frame(8);
        picture("number-pad");
        type(Numbers, L"70.5");
        EXPECT_STREQ(L"70.5", box->getText());
        clickAt(keyOf(Numbers, BackspaceKey));
        EXPECT_STREQ(L"70.", box->getText());
        box->remove();
        environment->setFocus(nullptr);
        frame();
    }
}

TEST_P(InputSystemTest, ServesEachKindOfEditBoxAndNoneThatTakesNoInput) {
    for (const int id : {NoEdit, TerminalEdit}) {
        irr::gui::IGUIEditBox* box = addBox(id, L"");
        focus(box);
        EXPECT_EQ(screen.Height, input->getCoveredTop()) << id;
        key(irr::KEY_KEY_X, L'x');
        EXPECT_STREQ(L"x", box->getText()) << "a real keyboard still types";
        box->remove();
    }
    irr::gui::IGUIEditBox* lines = addBox(MultilineEdit, L"");
    focus(lines);
    type(Text, L"ab");
    clickAt(keyOf(Text, EnterKey));
    type(Text, L"c");
    EXPECT_STREQ(L"ab\nc", lines->getText());
    lines->remove();
    irr::gui::IGUIEditBox* secret = addBox(StringEdit, L"");
    secret->setPasswordBox(true, L'*');
    focus(secret);
    type(Text, L"a-1");
    EXPECT_STREQ(L"a-1", secret->getText());
    secret->setVisible(false);
    EXPECT_EQ(screen.Height, input->getCoveredTop());
}

TEST_P(InputSystemTest, AHeldKeyRepeatsUntilTheFingerSlidesOff) {
    irr::gui::IGUIEditBox* box = addBox(StringEdit, L"");
    focus(box);
    press(keyOf(Text, L'e'));
    EXPECT_STREQ(L"e", box->getText());
    for (int i = 0; i < 20; ++i) {
        clock.advance(0.05);
        frame();
    }
    // At 0.76, and then about every half second and shorter.
    EXPECT_STREQ(L"ee", box->getText());
    for (int i = 0; i < 10; ++i) {
        clock.advance(0.1);
        frame();
    }
    EXPECT_GE(std::wstring(box->getText()).size(), 6u);
    const std::wstring before = box->getText();
    move(keyOf(Text, L'r'));
    clock.advance(5.0);
    frame(3);
    release(keyOf(Text, L'r'));
    EXPECT_EQ(before, box->getText());
}

TEST_P(InputSystemTest, FingersTypeOnceAndTwoThumbsInTurn) {
    irr::gui::IGUIEditBox* box = addBox(StringEdit, L"");
    focus(box);
    touch(1, RawTouch::Begin, keyOf(Text, L's'), true);
    touch(1, RawTouch::End, keyOf(Text, L's'), true);
    touch(2, RawTouch::Begin, keyOf(Text, L'k'), true);
    touch(3, RawTouch::Begin, keyOf(Text, L'y'), false);
    touch(2, RawTouch::End, keyOf(Text, L'k'), true);
    touch(3, RawTouch::End, keyOf(Text, L'y'), false);
    EXPECT_STREQ(L"sky", box->getText());
}

TEST_P(InputSystemTest, HidesWhileAFingerIsDownElsewhereAndComesBack) {
    irr::gui::IGUIEditBox* box = addBox(StringEdit, L"");
    focus(box);
    const position2di onBox = box->getAbsolutePosition().getCenter();
    press(onBox);
    EXPECT_EQ(screen.Height, input->getCoveredTop());
    move(keyOf(Text, L'g'));
    release(keyOf(Text, L'g'));
    EXPECT_LT(input->getCoveredTop(), screen.Height);
    EXPECT_STREQ(L"", box->getText());
    // A touch that never ends hides it no longer than until the next one.
    gl.device()->postEventFromUser(packTouchEvent({77, 5, 100, 1, TouchEvent::Pressed}));
    gl.device()->postEventFromUser(packTouchEvent({78, onBox.X, onBox.Y, 2, TouchEvent::Pressed}));
    gl.device()->postEventFromUser(packTouchEvent({78, onBox.X, onBox.Y, 1, TouchEvent::Left}));
    frame();
    type(Text, L"ok");
    EXPECT_STREQ(L"ok", box->getText());
    clickAt({screen.Width - 5, 5});
    frame();
    EXPECT_EQ(screen.Height, input->getCoveredTop()) << "a tap beside leaves the edit box";
}

TEST_P(InputSystemTest, TheChangeKeyBringsOneAfterTheOther) {
    irr::gui::IGUIEditBox* box = addBox(StringEdit, L"");
    focus(box);
    const int text = input->getCoveredTop();
    change();
    EXPECT_NE(text, input->getCoveredTop());
    type(Numbers, L"12");
    change();
    EXPECT_STREQ(L"12", box->getText());
    // The wipe area: from "2" two characters on, then back over the start of the alphabet.
    const int x = screen.Width - 10;
    const int step = screen.Height / 10;
    press({x, screen.Height / 2});
    move({x, screen.Height / 2 - 2 * step});
    EXPECT_STREQ(L"14", box->getText());
    frame(8);
    picture("wipe");
    release({x, screen.Height / 2 - 2 * step});
    frame();
    change();
    EXPECT_EQ(screen.Height, input->getCoveredTop()) << "a real keyboard";
    frame(8);
    picture("real-keyboard");
    change();
    EXPECT_EQ(text, input->getCoveredTop());
    EXPECT_STREQ(L"14", box->getText());
}

TEST_P(InputSystemTest, AWipeEndsInACharacterOfTheAlphabetAndWraps) {
    irr::gui::IGUIEditBox* box = addBox(IntegerEdit, L"");
    focus(box);
    change(); // to the wipe input
    const int x = screen.Width - 10;
    press({x, screen.Height - 10});
    move({x, screen.Height - 10 - screen.Height / 10});
    EXPECT_STREQ(L"1", box->getText());
    move({x, screen.Height - 10});
    EXPECT_STREQ(L"0", box->getText());
    release({x, screen.Height - 10});
    press({x, 10});
    move({x, 10 + screen.Height / 10});
    EXPECT_STREQ(L"-", box->getText());
    release({x, 10 + screen.Height / 10});
}

TEST_P(InputSystemTest, TheEditBoxStaysVisibleAndItsWindowGoesBack) {
    irr::gui::IGUIWindow* window = environment->addWindow(recti(0, 0, screen.Width, screen.Height), true);
    const recti place(10, screen.Height - 120, screen.Width - 10, screen.Height - 80);
    irr::gui::IGUIEditBox* low = environment->addEditBox(L"", place, true, window, StringEdit);
    irr::gui::IGUIEditBox* tall = environment->addEditBox(L"", recti(10, 40, screen.Width - 10, screen.Height - 140),
                                                          true, window, MultilineEdit);
    for (irr::gui::IGUIEditBox* box : {low, tall}) {
        const recti before = box->getAbsolutePosition();
        focus(box);
        frame(2);
        EXPECT_LE(box->getAbsolutePosition().LowerRightCorner.Y, input->getCoveredTop());
        EXPECT_GE(box->getAbsolutePosition().UpperLeftCorner.Y, 0);
        type(Text, L"a");
        EXPECT_STREQ(L"a", box->getText());
        clickAt({3, 3});
        frame();
        EXPECT_EQ(before, box->getAbsolutePosition());
    }
    focus(low);
    window->setRelativePosition(position2di(3, 4));
    environment->setFocus(nullptr);
    frame();
    EXPECT_EQ(position2di(3, 4), window->getRelativePosition().UpperLeftCorner) << "its owner's place counts";
}

TEST_P(InputSystemTest, ADialogIsAnsweredByFingersAlone) {
    struct Answer : IEditBoxDialogCallback {
        void OnResult(EditBoxDialog*, const wchar_t* text, bool accepted) override { said = accepted ? text : L"no"; }
        std::wstring said;
    } answer;
    (new EditBoxDialog(&answer, gl.device(), L"Record", L"The new file's name:", L"Log"))->drop();
    frame(8);
    picture("dialog");
    type(Text, L"7");
    clickAt(keyOf(Text, EnterKey));
    frame();
    EXPECT_EQ(L"Log7", answer.said);
    EXPECT_EQ(screen.Height, input->getCoveredTop());
}

TEST_P(InputSystemTest, AStormOfTouchesLeavesItUsable) {
    irr::gui::IGUIEditBox* box = addBox(StringEdit, L"");
    box->setMax(200);
    std::mt19937 random(3);
    for (int i = 0; i < 3000; ++i) {
        if (environment->getFocus() != box && i % 40 == 0)
            focus(box);
        const position2di place(int(random() % screen.Width), int(random() % screen.Height));
        const auto kind = static_cast<RawTouch::Kind>(random() % 3);
        touch(unsigned(random() % 6), kind, place, random() % 2 == 0);
        if (i % 30 == 0) {
            clock.advance(0.2);
            frame();
        }
    }
    for (unsigned finger = 0; finger < 6; ++finger)
        touch(finger, RawTouch::End, {1, 1}, true);
    environment->setFocus(nullptr);
    frame();
    box->setText(L"");
    box->setID(IntegerEdit);
    focus(box);
    while (input->getCoveredTop() !=
           layOutKeyboard(keyBoardDefs[Numbers], screen, context->getRecommendedButtonHeight()).area.UpperLeftCorner.Y)
        change();
    type(Numbers, L"42");
    EXPECT_STREQ(L"42", box->getText());
}

TEST_P(InputSystemTest, AFrameWithKeysAllocatesNothing) {
    focus(addBox(StringEdit, L""));
    clock.advance(1.0);
    frame(3);
    gl.begin();
    const AllocationCounter counter;
    input->render();
    EXPECT_EQ(0u, counter.count());
    gl.end();
}

INSTANTIATE_TEST_SUITE_P(Screens, InputSystemTest, allScreens());

} // namespace skyvane
