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

} // namespace
} // namespace skyvane
