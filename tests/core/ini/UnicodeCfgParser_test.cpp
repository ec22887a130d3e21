#include "core/ini/UnicodeCfgParser.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

using Rows = std::vector<UnicodeCfgParser::Row>;

Rows rowsOf(unsigned columns, const wchar_t* text) {
    UnicodeCfgParser parser(columns);
    parser.parse(L"left,over;");
    parser.parse(text);
    return parser.getResult();
}

TEST(UnicodeCfgParser, readsTables) {
    EXPECT_EQ(rowsOf(2, L"a,b;c,d;"), (Rows{{L"a", L"b"}, {L"c", L"d"}}));
    EXPECT_EQ(rowsOf(2, L"a,\r\nb;\n"), (Rows{{L"a", L"b"}}));
    EXPECT_EQ(rowsOf(3, L"a;;b,"), (Rows{{L"a", L"", L""}, {L"", L"", L""}, {L"b", L"", L""}}));
    EXPECT_EQ(rowsOf(2, L"a\\,\\;\\\\\\n\\\n\\x,b;"), (Rows{{L"a,;\\\n\nx", L"b"}}));
    EXPECT_EQ(rowsOf(2, L"a,b;tail"), (Rows{{L"a", L"b"}}));
    EXPECT_EQ(rowsOf(2, L"a,tail\\"), (Rows{{L"a", L""}}));
    EXPECT_EQ(rowsOf(2, L""), Rows{});
    EXPECT_EQ(rowsOf(2, L" "), Rows{});
}

TEST(UnicodeCfgParser, reportsAndDropsTooManyTokens) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(rowsOf(2, L",b,c;d;"), (Rows{{L"", L"b"}, {L"d", L""}}));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Parser Error: Too many tokens in line: ,b\n");
    testing::internal::CaptureStderr();
    EXPECT_EQ(rowsOf(0, L"a,"), Rows{});
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

TEST(UnicodeCfgParser, readsUtf8) {
    UnicodeCfgParser parser(1);
    parser.parseFromUTF8("\xC2\xB0\xFF;");
    EXPECT_EQ(parser.getResult(), (Rows{{L"\u00B0?"}}));
}

} // namespace
} // namespace skyvane
