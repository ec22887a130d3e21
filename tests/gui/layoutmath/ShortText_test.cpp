#include "gui/layoutmath/ShortText.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(ShortText, keepsTheEndAndAsMuchAsFits) {
    const std::wstring text = L"Log: /home/pilot/Logs/Flight.dat";
    const auto shorten = [&](size_t room) {
        return keepEnd(text, 5, [room](const std::wstring& words) { return words.size() <= room; });
    };
    EXPECT_EQ(shorten(32), text);
    for (size_t room = 8; room < 32; ++room) {
        const std::wstring shortened = shorten(room);
        EXPECT_EQ(shortened.size(), room);
        EXPECT_EQ(shortened.substr(0, 8), L"Log: ...");
        EXPECT_EQ(text.substr(text.size() - (room - 8)), shortened.substr(8));
    }
    EXPECT_EQ(shorten(0), L"Log: ...") << "never less";
    EXPECT_EQ(keepEnd(L"", 5, [](const std::wstring&) { return false; }), L"...");
}

TEST(ShortText, TheBeginningStaysWithoutBlanksBeforeTheGap) {
    const auto keep = [](const std::wstring& text, size_t room) {
        return keepBegin(text, [room](const std::wstring& shown) { return shown.size() <= room; });
    };
    EXPECT_EQ(L"Round trip", keep(L"Round trip", 10));
    EXPECT_EQ(L"Round...", keep(L"Round trip", 9));
    EXPECT_EQ(L"R...", keep(L"Round trip", 4));
    EXPECT_EQ(L"", keep(L"", 0));
    for (const size_t room : {0u, 1u, 3u})
        EXPECT_EQ(L"...", keep(L"Round trip", room));
    EXPECT_EQ(L"...", keep(L"    x", 4));
    for (size_t room = 4; room < 200; room += 7)
        EXPECT_EQ(room, keep(std::wstring(100000, L'm'), room).size());
}

} // namespace
} // namespace skyvane
