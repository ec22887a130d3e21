#include "displays/checklist/CheckListProgress.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

const std::list<std::string> beforeStart{"Doors closed", "Fuel on", "Brakes set"};

TEST(CheckListProgress, theNextItemIsTheFirstOpenOne) {
    CheckListProgress progress;
    EXPECT_EQ(progress.getNext(), -1);
    EXPECT_EQ(progress.describe(), L"");
    progress.begin(beforeStart);
    EXPECT_EQ(progress.getNext(), 0);
    progress.toggle(1);
    EXPECT_EQ(progress.getNext(), 0) << "what was skipped comes first";
    progress.toggle(0);
    EXPECT_EQ(progress.getNext(), 2);
    EXPECT_EQ(progress.describe(), L"2 of 3 done");
    progress.toggle(2);
    EXPECT_EQ(progress.getNext(), -1);
    progress.toggle(0);
    EXPECT_EQ(progress.getNext(), 0) << "open again";
    progress.toggle(-1);
    progress.toggle(3);
    EXPECT_EQ(progress.getDoneCount(), 2);
}

TEST(CheckListProgress, oldTicksNeverStandOnOtherLines) {
    CheckListProgress progress;
    progress.begin(beforeStart);
    progress.toggle(0);
    EXPECT_FALSE(progress.update(beforeStart));
    EXPECT_TRUE(progress.isDone(0));
    EXPECT_TRUE(progress.update({"Doors closed", "Fuel on"}));
    EXPECT_FALSE(progress.isDone(0));
    progress.toggle(0);
    progress.begin({"Doors closed", "Fuel on"});
    EXPECT_FALSE(progress.isDone(0)) << "chosen again";
    EXPECT_TRUE(progress.update({}));
    EXPECT_EQ(progress.getCount(), 0);
}

TEST(RowStack, findsTheRowAtAPlace) {
    RowStack rows;
    EXPECT_EQ(rows.at(0), -1);
    for (const int height : {40, 80, 40})
        rows.add(height);
    EXPECT_EQ(rows.getHeight(), 160);
    EXPECT_EQ(rows.at(-1), -1);
    EXPECT_EQ(rows.at(0), 0);
    EXPECT_EQ(rows.at(39), 0);
    EXPECT_EQ(rows.at(40), 1);
    EXPECT_EQ(rows.at(119), 1);
    EXPECT_EQ(rows.at(159), 2);
    EXPECT_EQ(rows.at(160), -1) << "below the last item nothing is ticked";
    EXPECT_EQ(rows.getTop(1), 40);
    EXPECT_EQ(rows.getBottom(1), 120);
}

} // namespace
} // namespace skyvane
