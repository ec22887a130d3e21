#include "displays/layout/MessageBoard.h"
#include "displays/layout/MessageBox.h"

#include "core/time/Time.h"

#include <gtest/gtest.h>

using namespace skyvane;
using irr::core::dimension2d;
using irr::core::rect;

namespace {

TEST(MessageBoard, joinsInTheOrderOfOwnersWithTheLargestLevel) {
    int owners[3] = {};
    MessageBoard board;
    EXPECT_EQ(board.collect(0), nullptr);
    board.set(&owners[2], "third", MESSAGE_GREY, -1, 0);
    board.set(&owners[0], "first", MESSAGE_YELLOW, -1, 0);
    board.set(&owners[1], "second", MESSAGE_GREEN, -1, 0);
    const MessageBoard::Joined* joined = board.collect(0);
    ASSERT_TRUE(joined);
    EXPECT_EQ(joined->text, "first\nsecond\nthird");
    EXPECT_EQ(joined->level, MESSAGE_YELLOW);
    board.set(&owners[0], "one", MESSAGE_GREEN, -1, 0);
    board.remove(&owners[2]);
    joined = board.collect(4000000);
    EXPECT_EQ(joined->text, "one\nsecond");
    EXPECT_EQ(joined->level, MESSAGE_GREEN);
    board.clear();
    EXPECT_TRUE(board.isEmpty());
    EXPECT_EQ(board.collect(0), nullptr);
}

TEST(MessageBoard, takesDownWhatHasTimedOut) {
    int a = 0, b = 0;
    MessageBoard board;
    board.set(&a, "a", MESSAGE_RED, 500, 1000);
    board.set(&b, "b", MESSAGE_GREY, -1, 1000);
    const char* const both = &a < &b ? "a\nb" : "b\na";
    EXPECT_EQ(board.collect(1500)->text, both) << "an age equal to the time-out is still up";
    EXPECT_EQ(board.collect(1501)->text, "b");
    EXPECT_EQ(board.collect(1501)->level, MESSAGE_GREY);
    board.set(&a, "a", MESSAGE_RED, 500, 2000);
    board.set(&a, "a", MESSAGE_RED, 500, 2400);
    EXPECT_EQ(board.collect(2900)->text, both) << "renewed";
    board.set(&a, "a", MESSAGE_RED, 0, 3000);
    EXPECT_EQ(board.collect(3001)->text, "b");
}

TEST(MessageBoard, takesNothingWhileNotAccepting) {
    int a = 0;
    MessageBoard board;
    board.setAccepting(false);
    board.set(&a, "a", MESSAGE_RED, -1, 0);
    EXPECT_TRUE(board.isEmpty());
    board.setAccepting(true);
    board.set(&a, "a", MESSAGE_RED, -1, 0);
    EXPECT_FALSE(board.isEmpty());
}

const MessageSpace wide{1000, 660, 40, {700, 0}};

TEST(MessagePlace, standsCentredAboveTheBottom) {
    const MessageRects rects = placeMessageBox(dimension2d<irr::u32>(301, 50), false, wide);
    EXPECT_EQ(rects.text, rect<int>(350, 605, 651, 655)) << "349.5 rounds away from zero";
    EXPECT_EQ(rects.box, rect<int>(345, 600, 661, 660));
    const MessageRects tooWide = placeMessageBox(dimension2d<irr::u32>(1200, 50), false, wide);
    EXPECT_EQ(tooWide.text, rect<int>(0, 605, 1200, 655));
}

TEST(MessagePlace, leavesRoomForClose) {
    const MessageRects rects = placeMessageBox(dimension2d<irr::u32>(300, 50), true, wide);
    EXPECT_EQ(rects.text, rect<int>(350, 555, 650, 605));
    EXPECT_EQ(rects.box, rect<int>(345, 550, 660, 660));
    EXPECT_EQ(rects.close, rect<int>(350 + 39, 635, 350 + 118, 655));
}

TEST(MessagePlace, makesWayForAClaimedRange) {
    MessageSpace space = wide;
    const auto textOf = [&](int from, int to) {
        space.claimed = {from, to};
        return placeMessageBox(dimension2d<irr::u32>(300, 50), false, space).text;
    };
    const rect<int> plain(350, 605, 650, 655);
    EXPECT_EQ(textOf(0, 604), plain);
    EXPECT_EQ(textOf(656, 700), plain);
    EXPECT_EQ(textOf(640, 700), rect<int>(350, 585, 650, 635)) << "over the bottom of the text";
    EXPECT_EQ(textOf(500, 610), rect<int>(350, 445, 650, 495)) << "over its top";
    EXPECT_EQ(textOf(620, 630), rect<int>(350, 565, 650, 615)) << "within it";
}

TEST(MessageBox, colorsFollowTheLevel) {
    EXPECT_EQ(messageBoxColor(MESSAGE_GREY), 0xc8c8c8c8u);
    EXPECT_EQ(messageBoxColor(MESSAGE_YELLOW), 0xc8ffff00u);
    EXPECT_EQ(messageBoxColor(MESSAGE_RED), 0xc8ff0000u);
    EXPECT_EQ(messageBoxColor(MESSAGE_GREEN), 0x8000ff00u);
    EXPECT_EQ(messageBoxColor(static_cast<MESSAGECOLOR>(77)), 0x8000ff00u);
}

class MessageBoxTest : public testing::Test {
protected:
    void SetUp() override { setClock(&clock); }
    void TearDown() override { setClock(nullptr); }
    void show(int milliseconds) {
        box.show(placeMessageBox(dimension2d<irr::u32>(300, 50), false, wide), {0xc8ff0000u, 0xff000000u}, milliseconds,
                 MilliSecs());
    }
    bool updateAfter(double seconds) {
        clock.advance(seconds);
        return box.update(MilliSecs(), colors);
    }

    ManualClock clock;
    MessageBox box;
    MessageBox::Colors colors{};
};

TEST_F(MessageBoxTest, fadesInItsLastSecond) {
    show(3000);
    EXPECT_TRUE(updateAfter(1.9));
    EXPECT_EQ(colors.box, 0xc8ff0000u);
    EXPECT_EQ(colors.text, 0xff000000u);
    EXPECT_TRUE(updateAfter(0.6)); // half a second left: 200 * 0.5
    EXPECT_EQ(colors.box, 0x64ff0000u);
    EXPECT_EQ(colors.text, 0xc8000000u) << "the box's alpha of the start of the frame";
    EXPECT_TRUE(updateAfter(0.25)); // 100 * 0.25: the fade compounds
    EXPECT_EQ(colors.box, 0x19ff0000u);
    EXPECT_EQ(colors.text, 0x64000000u);
    EXPECT_FALSE(updateAfter(0.252));
    EXPECT_FALSE(box.isVisible());
}

TEST_F(MessageBoxTest, renewedEachFrameItStays) {
    for (int i = 0; i < 100; ++i) {
        show(1000);
        ASSERT_TRUE(box.update(MilliSecs(), colors));
        ASSERT_EQ(colors.box, 0xc8ff0000u);
        clock.advance(0.036);
    }
}

TEST_F(MessageBoxTest, isDismissedByAPressAndAReleaseInside) {
    using Answer = MessageBox::Answer;
    EXPECT_EQ(box.press(400, 620), Answer::NotMine) << "not shown";
    show(5000);
    EXPECT_EQ(box.press(10, 10), Answer::NotMine);
    EXPECT_EQ(box.release(400, 620), Answer::NotMine) << "not armed";
    EXPECT_EQ(box.press(400, 620), Answer::Consumed);
    EXPECT_EQ(box.release(10, 10), Answer::Consumed);
    EXPECT_TRUE(box.isVisible()) << "a release outside keeps the box";
    EXPECT_EQ(box.release(400, 620), Answer::NotMine) << "and disarms it";
    EXPECT_EQ(box.press(400, 620), Answer::Consumed);
    EXPECT_EQ(box.press(10, 10), Answer::NotMine) << "a press outside disarms";
    EXPECT_EQ(box.release(400, 620), Answer::NotMine);
    EXPECT_EQ(box.press(345, 600), Answer::Consumed);
    show(5000); // renewed meanwhile
    EXPECT_EQ(box.release(660, 660), Answer::Dismissed);
    EXPECT_FALSE(box.isVisible());
}

} // namespace
