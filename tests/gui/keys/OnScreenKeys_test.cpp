#include "core/ini/IniFile.h"
#include "gui/keys/EditBoxId.h"
#include "gui/keys/FingerTracker.h"
#include "gui/keys/InputChoice.h"
#include "gui/keys/InputColor.h"
#include "gui/keys/KeepVisible.h"
#include "gui/keys/KeyCodes.h"
#include "gui/keys/KeyPress.h"
#include "gui/keys/KeyRepeat.h"
#include "gui/keys/KeyboardLayout.h"
#include "gui/keys/WipeDial.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace skyvane {
namespace {

using Rect = irr::core::rect<int>;
using Screen = irr::core::dimension2d<int>;
using Kind = KeyPress::Kind;

const KeyDefinition* findKey(const KeyboardDefinition& keyboard, wchar_t character) {
    for (const auto& row : keyboard.rows)
        for (const KeyDefinition& key : row)
            if (key.character == character)
                return &key;
    return nullptr;
}

FingerTracker::Event touch(unsigned finger, Kind kind, int x, int y) {
    return {true, finger, kind, {x, y}};
}

FingerTracker::Event mouse(Kind kind, int x, int y) {
    return {false, 0, kind, {x, y}};
}

} // namespace

TEST(KeyboardDefinition, KeysCarryTheirCharactersAndTheEnginesCodes) {
    const KeyboardDefinition& text = keyBoardDefs.at(0);
    EXPECT_EQ(L'/', findKey(text, L'5')->shiftCharacter);
    const struct {
        wchar_t character, shifted;
        int code;
    } some[] = {{L'q', L'Q', 81},  {L'0', L')', 48}, {L'=', L'+', 107}, {L',', L';', 188}, {L'.', L':', 190},
                {L'-', L'_', 189}, {L'm', L'M', 77}, {L' ', L' ', 32},  {1, 1, 13},        {8, 8, 8}};
    for (const auto& each : some) {
        ASSERT_TRUE(findKey(text, each.character));
        EXPECT_EQ(each.shifted, findKey(text, each.character)->shiftCharacter);
        EXPECT_EQ(each.code, findKey(text, each.character)->keyCode);
    }
    for (const KeyboardDefinition& keyboard : keyBoardDefs)
        for (const auto& row : keyboard.rows) {
            double width = 0.0;
            for (const KeyDefinition& key : row)
                width += key.width;
            EXPECT_EQ(keyboard.columns, width);
        }
}

TEST(KeyboardLayout, KeysFillTheKeyboardWithoutGapsOnEveryScreen) {
    for (const Screen screen : {Screen(1280, 720), Screen(720, 1280), Screen(1920, 1080), Screen(800, 480)}) {
        const int buttonHeight = static_cast<int>(0.049410625 * std::sqrt(1.0 * screen.Width * screen.Height) + 0.5);
        for (const KeyboardDefinition& keyboard : keyBoardDefs) {
            const KeyboardLayout layout = layOutKeyboard(keyboard, screen, buttonHeight);
            EXPECT_EQ(screen.Height, layout.area.LowerRightCorner.Y);
            EXPECT_LE(layout.area.getHeight(), screen.Height / 2);
            long covered = 0;
            for (const Rect& key : layout.keys) {
                covered += key.getArea();
                EXPECT_GE(key.getHeight(), buttonHeight * 14 / 10);
                EXPECT_GE(key.getWidth(), buttonHeight * 14 / 10);
            }
            EXPECT_EQ(layout.area.getArea(), covered);
        }
    }
    const KeyboardLayout pad = layOutKeyboard(keyBoardDefs[1], Screen(1280, 720), 47);
    EXPECT_EQ(Rect(360, 440, 920, 720), pad.area) << "keys twice as wide as high, in the middle";
    EXPECT_EQ(0, layOutKeyboard({}, Screen(0, 0), 0).area.getWidth());
}

TEST(KeyRepeat, SpeedsUpFromASecondToATenth) {
    EXPECT_DOUBLE_EQ(1.0, repeatInterval(0.0));
    EXPECT_DOUBLE_EQ(1.0, repeatInterval(0.5));
    EXPECT_DOUBLE_EQ(0.55, repeatInterval(1.0));
    EXPECT_DOUBLE_EQ(0.1, repeatInterval(1.5));
    EXPECT_DOUBLE_EQ(0.1, repeatInterval(9.0));
    KeyRepeat repeat;
    repeat.press(100.0);
    std::vector<double> due;
    for (int millisecond = 1; millisecond < 2000; ++millisecond)
        if (repeat.takeDue(100.0 + millisecond / 1000.0))
            due.push_back(millisecond / 1000.0);
    // The first when the shrinking interval meets the time since the press.
    ASSERT_GE(due.size(), 6u);
    EXPECT_NEAR(0.763, due[0], 0.002);
    for (std::size_t i = 1; i < due.size(); ++i)
        EXPECT_NEAR(repeatInterval(due[i]), due[i] - due[i - 1], 0.002);
}

TEST(KeyRepeat, EndsForATouchThatNeverDoes) {
    KeyRepeat repeat;
    repeat.press(0.0);
    int count = 0;
    for (int i = 0; i < 1000000; ++i)
        count += repeat.takeDue(i * 0.036);
    EXPECT_GT(count, 50);
    EXPECT_LT(count, 160);
}

TEST(KeyPress, AFingerThatSlidesOffLetsGoAndPressesNothingElse) {
    KeyPress from;
    KeyPress to;
    EXPECT_TRUE(from.process(Kind::Press, true, true));
    EXPECT_FALSE(to.process(Kind::Press, false, true));
    EXPECT_FALSE(from.process(Kind::Move, true, true));
    EXPECT_TRUE(from.isPressed());
    EXPECT_TRUE(from.process(Kind::Move, false, true));
    EXPECT_FALSE(from.isPressed());
    EXPECT_FALSE(from.process(Kind::Move, false, true));
    EXPECT_FALSE(to.process(Kind::Move, true, true));
    EXPECT_FALSE(to.isPressed());
    EXPECT_TRUE(to.isPressedOutside());
    EXPECT_TRUE(to.process(Kind::Release, true, false));
    EXPECT_FALSE(to.isPressedOutside());
}

TEST(InputChoice, TakesThePreferredOneAndKeepsWhatTheUserChose) {
    // The real keyboard, text, numbers, wipe.
    InputChoice choice(4, [](std::size_t input, int id) {
        return input == 1   ? id == StringEdit || id == MultilineEdit
               : input == 2 ? id == IntegerEdit || id == DecimalEdit
                            : input == 3 && (id == IntegerEdit || id == StringEdit);
    });
    EXPECT_FALSE(choice.isAvailable());
    choice.select(DecimalEdit);
    EXPECT_EQ(2u, choice.getCurrent());
    choice.select(StringEdit);
    EXPECT_EQ(1u, choice.getCurrent());
    for (const int id : {int(NoEdit), int(TerminalEdit), 77}) {
        choice.select(id);
        EXPECT_FALSE(choice.isAvailable()) << id;
    }
    choice.select(StringEdit);
    EXPECT_TRUE(choice.isAvailable());
    choice.change();
    choice.change();
    choice.select(IntegerEdit);
    EXPECT_EQ(3u, choice.getCurrent()) << "wiping serves this one too";
    choice.select(MultilineEdit);
    EXPECT_EQ(1u, choice.getCurrent());
    for (int i = 0; i < 3; ++i)
        choice.change();
    choice.select(IntegerEdit);
    EXPECT_EQ(0u, choice.getCurrent()) << "a real keyboard, once asked for, serves all";
    choice.change();
    EXPECT_EQ(1u, choice.getCurrent());
}

TEST(EditBoxMarking, NumbersAndDestinationsAreSelectedTextsAppended) {
    for (const int id : {IntegerEdit, DecimalEdit, DestinationEdit})
        EXPECT_TRUE(markingOf(id).cursorToEnd && markingOf(id).selectAll) << id;
    EXPECT_TRUE(markingOf(StringEdit).cursorToEnd);
    EXPECT_FALSE(markingOf(StringEdit).selectAll);
    for (const int id : {int(NoEdit), int(MultilineEdit), int(TerminalEdit), 12})
        EXPECT_FALSE(markingOf(id).cursorToEnd || markingOf(id).selectAll) << id;
}

TEST(FingerTracker, TheMouseThatRepeatsAFingerTypesNothingTwice) {
    FingerTracker fingers;
    FingerTracker::Result result = fingers.process(touch(1, Kind::Press, 10, 10), true);
    EXPECT_TRUE(result.counts && result.isKept);
    result = fingers.process(mouse(Kind::Press, 10, 10), true);
    EXPECT_TRUE(!result.counts && result.isKept);
    fingers.process(touch(1, Kind::Release, 10, 10), true);
    result = fingers.process(mouse(Kind::Release, 10, 10), true);
    EXPECT_TRUE(!result.counts && result.isKept);
    EXPECT_FALSE(fingers.isDown());
    result = fingers.process(mouse(Kind::Press, 11, 10), true);
    EXPECT_TRUE(result.counts && result.isKept) << "a mouse of its own";
}

TEST(FingerTracker, KeepsAFingerOfTheKeysWhereverItGoesAndNoOther) {
    FingerTracker fingers;
    fingers.process(touch(1, Kind::Press, 0, 400), true);
    EXPECT_TRUE(fingers.process(touch(1, Kind::Move, 0, 100), false).isKept);
    EXPECT_TRUE(fingers.process(touch(1, Kind::Release, 0, 100), false).isKept);
    EXPECT_FALSE(fingers.process(touch(2, Kind::Press, 0, 100), false).isKept);
    EXPECT_TRUE(fingers.isDownOutside());
    EXPECT_FALSE(fingers.process(touch(2, Kind::Move, 0, 400), true).isKept);
    EXPECT_FALSE(fingers.process(touch(2, Kind::Release, 0, 400), true).isKept);
    EXPECT_FALSE(fingers.isDownOutside());
}

TEST(FingerTracker, TheNewestOfTwoThumbsTypes) {
    FingerTracker fingers;
    fingers.process(touch(1, Kind::Press, 0, 0), true);
    EXPECT_TRUE(fingers.process(touch(2, Kind::Press, 50, 0), true).counts);
    FingerTracker::Result result = fingers.process(touch(1, Kind::Release, 0, 0), true);
    EXPECT_TRUE(!result.counts && result.isKept);
    EXPECT_TRUE(fingers.process(touch(2, Kind::Release, 50, 0), true).counts);
}

TEST(FingerTracker, SurvivesAStormAndTouchesThatNeverEnd) {
    FingerTracker fingers;
    std::mt19937 random(7);
    for (int i = 0; i < 100000; ++i) {
        const auto kind = static_cast<Kind>(random() % 3);
        fingers.process({random() % 2 == 0, unsigned(random() % 40), kind, {int(random()), int(random())}},
                        random() % 2 == 0);
    }
    fingers.process(touch(1000, Kind::Press, 1, 1), false);
    fingers.process(touch(1001, Kind::Press, 2, 2), false);
    fingers.process(touch(1001, Kind::Release, 2, 2), false);
    EXPECT_FALSE(fingers.isDownOutside()) << "the finger that never left hides the keys no longer";
}

TEST(WipeDial, FollowsTheFingerRoundAndRound) {
    const std::wstring& letters = wipeAlphabet(StringEdit);
    WipeDial dial;
    dial.rest(letters, L'c');
    EXPECT_EQ(L'C', dial.getCharacter());
    dial.start(500, 1000, 10);
    EXPECT_EQ(L'C', dial.getCharacter());
    EXPECT_DOUBLE_EQ(0.5, dial.getPlace().fraction);
    dial.move(400);
    EXPECT_EQ(L'D', dial.getCharacter());
    dial.move(360);
    EXPECT_EQ(L'D', dial.getCharacter());
    EXPECT_NEAR(0.9, dial.getPlace().fraction, 1e-9);
    dial.move(800);
    EXPECT_EQ(L'9', dial.getCharacter()) << "backwards past the start";
    EXPECT_EQ(L'A', dial.getCharacter(1));
    dial.rest(letters, L'9');
    dial.start(0, 1000, 10);
    dial.move(-100);
    EXPECT_EQ(L'A', dial.getCharacter()) << "past the end";
    for (const int y : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        dial.move(y);
        EXPECT_NE(std::wstring::npos, letters.find(dial.getCharacter()));
    }
}

TEST(WipeDial, BeginsWithTheFirstCharacterOutsideOfItsAlphabet) {
    WipeDial dial;
    for (const wchar_t last : {L'?', L'\0', L'\x4e2d'}) {
        dial.rest(wipeAlphabet(DecimalEdit), last);
        EXPECT_EQ(L'0', dial.getCharacter());
    }
    EXPECT_EQ(L"0123456789-", wipeAlphabet(IntegerEdit));
    for (const int id : {IntegerEdit, DecimalEdit, StringEdit, DestinationEdit})
        for (const wchar_t character : wipeAlphabet(id))
            EXPECT_NE(0, keyCodeOf(character));
}

TEST(KeepVisible, LiftsTheWindowOrTheEditBoxAboveTheKeys) {
    const std::vector<Rect> keys{{0, 400, 800, 600}};
    const auto check = [&](const Rect& box, const Rect& window, int lift, int shrink) {
        const Clearance needed = clearOf(keys, box, window, 10);
        EXPECT_EQ(lift, needed.lift);
        EXPECT_EQ(shrink, needed.shrink);
    };
    check({100, 300, 700, 340}, {0, 0, 800, 600}, 0, 0);
    check({100, 380, 700, 420}, {100, 200, 700, 500}, 100, 0); // the whole window
    check({100, 210, 700, 250}, {100, 200, 700, 500}, 100, 0); // and its buttons
    check({100, 100, 700, 150}, {100, 0, 700, 300}, 0, 0);
    check({100, 500, 700, 540}, {0, 0, 800, 600}, 150, 0); // as much as the edit box needs
    check({100, 50, 700, 550}, {0, 0, 800, 600}, 40, 120); // too high for what is left
    const Clearance beside = clearOf({{0, 400, 100, 600}}, {100, 500, 700, 540}, {0, 0, 800, 600}, 10);
    EXPECT_EQ(0, beside.lift);
}

TEST(InputColor, IsReadPartByPartAndBroughtIntoItsRange) {
    IniFile config;
    EXPECT_EQ(0xA000FF00u, readInputColor(config));
    config.set("", "inputColor.R", "200");
    config.set("", "inputColor.A", "999");
    config.set("", "inputColor.B", "-3");
    config.set("", "inputColor.G", "many");
    EXPECT_EQ(0xFFC8FF00u, readInputColor(config));
}

} // namespace skyvane
