#include "gui/hypertext/pages/PageHistory.h"
#include "gui/hypertext/pages/PictureHeader.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(PageHistory, GoesBackAndForth) {
    PageHistory history;
    EXPECT_EQ("", history.goBackwards("a"));
    history.leave("");
    EXPECT_FALSE(history.hasBackward());
    history.leave("a");
    history.leave("b");
    EXPECT_EQ("b", history.goBackwards("c"));
    EXPECT_EQ("a", history.goBackwards("b"));
    EXPECT_EQ("", history.goBackwards("a"));
    EXPECT_EQ("b", history.goForwards("a"));
    history.leave("b");
    EXPECT_FALSE(history.hasForward());
    for (int i = 0; i < 10000; ++i) // links in a circle
        history.leave(std::to_string(i));
    size_t steps = 0;
    while (!history.goBackwards("x").empty())
        ++steps;
    EXPECT_EQ(PageHistory::longest, steps);
}

TEST(PageNames, StayWithinTheFolder) {
    for (const char* good : {"index.hti", "pictures/a.png", "a..b", "..a"})
        EXPECT_TRUE(isNameWithinFolder(good)) << good;
    for (const char* bad : {"", "/etc/passwd", "..", "../a", "a/../../b", "a/..", "./a", "a\\b", "C:a", "a\nb"})
        EXPECT_FALSE(isNameWithinFolder(bad)) << bad;
}

TEST(PictureHeader, TellsSizesThatCanBeShown) {
    using Size = irr::core::dimension2d<irr::u32>;
    const std::string head("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\x10\0\0\0\0\x07\x08\6\0\0\0\1\2\3\4", 33);
    EXPECT_EQ(Size(4096, 7), readPictureSize(head));
    std::string larger = head;
    larger[19] = 1;
    EXPECT_EQ(Size(0, 0), readPictureSize(larger));
    for (size_t length = 0; length < head.size(); ++length)
        EXPECT_EQ(Size(0, 0), readPictureSize(head.substr(0, length)));
    EXPECT_EQ(Size(0, 0), readPictureSize(std::string(100, 'x')));
}

} // namespace
} // namespace skyvane
