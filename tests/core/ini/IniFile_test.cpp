#include "core/ini/IniFile.h"

#include "core/ini/IniEscapes.h"
#include "core/ini/IniIterator.h"
#include "core/ini/SeparatedString.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <random>

namespace skyvane {
namespace {

std::string textOf(const char* text) {
    IniFile document;
    document.setFromString(text);
    return document.toString();
}

std::string temporaryPath(const char* name) {
    return testing::TempDir() + name;
}

TEST(IniFile, readsTheGrammar) {
    EXPECT_EQ(textOf(""), "");
    EXPECT_EQ(textOf("a=1"), "a = 1\n\n");
    EXPECT_EQ(textOf("a   =\t   1\n"), "a = 1\n\n");
    EXPECT_EQ(textOf("a = 1   \n"), "a = 1\\ \\ \\ \n\n");
    EXPECT_EQ(textOf("only a key"), "");
    EXPECT_EQ(textOf("a =\nb =   \n"), "a = \nb = \n\n");
    EXPECT_EQ(textOf("a = 1\na = 2\n"), "a = 2\n\n");
    EXPECT_EQ(textOf("  ; note\n\t# note\n  a = 1\n"), "a = 1\n\n");
    EXPECT_EQ(textOf("a = 1 # data\n"), "a = 1\\ \\#\\ data\n\n");
    EXPECT_EQ(textOf("[P1] trailing text\na=1"), "[P1]\na = 1\n\n");
    EXPECT_EQ(textOf("[S]\na=1\n[T]\nb=2\n[S]\nc=3\n"), "[S]\na = 1\nc = 3\n\n[T]\nb = 2\n\n");
    EXPECT_EQ(textOf("runs\non = 1\n"), "runs\\non = 1\n\n");
    EXPECT_EQ(textOf("a = 1\r\n\r\nb = 2"), "\r\\nb = 2\na = 1\r\n\n");
    EXPECT_EQ(textOf("[]\na = 1"), "a = 1\n\n");
    EXPECT_EQ(textOf("=a=1"), "\\2a = 1\n\n");
}

TEST(IniFile, keepsTheEscapedSectionNameAcrossItsRecords) {
    EXPECT_EQ(textOf("[a\\\\nb]\nx = 1\ny = 2\n"), "[a\\\\nb]\nx = 1\ny = 2\n\n");
}

TEST(IniFile, dropsALoneBackslashAtTheEnd) {
    EXPECT_EQ(textOf("[S\\]\nkey\\ =value\\\n"), "[S]\nkey = value\n\n");
}

TEST(IniFile, ordersSectionsAndKeysBytewise) {
    IniFile document;
    document.set("P2", "k", "1");
    document.set("P10", "b", "2");
    document.set("P10", "B", "3");
    document.set("", "z", "4");
    EXPECT_EQ(document.toString(), "z = 4\n\n[P10]\nB = 3\nb = 2\n\n[P2]\nk = 1\n\n");
}

TEST(IniFile, readingCreatesAndAskingDoesNot) {
    IniFile document;
    EXPECT_FALSE(document.isSectionAvailable("S"));
    EXPECT_FALSE(document.isAvailable("S", "k"));
    EXPECT_EQ(document.toString(), "");
    EXPECT_EQ(document.get("S", "k"), "");
    EXPECT_TRUE(document.isSectionAvailable("S"));
    EXPECT_TRUE(document.isAvailable("S", "k"));
    EXPECT_EQ(document.toString(), "[S]\nk = \n\n");
}

TEST(IniFile, movesAndRemoves) {
    IniFile document;
    document.setFromString("[A]\nx=1\n[B]\ny=2\n");
    document.moveSection("A", "B");
    EXPECT_EQ(document.toString(), "[B]\nx = 1\n\n");
    document.moveSection("B", "B");
    document.moveSection("missing", "B");
    EXPECT_EQ(document.toString(), "[B]\nx = 1\n\n");
    document.removeValue("missing", "x");
    document.removeValue("B", "x");
    EXPECT_FALSE(document.isAvailable("B", "x"));
    document.removeSection("B");
    EXPECT_EQ(document.toString(), "");
}

TEST(IniFile, addsToWhatIsThere) {
    IniFile document;
    document.setFromString("a = 1\nb = 2");
    document.setFromString("b = 3\nc = 4");
    EXPECT_EQ(document.toString(), "a = 1\nb = 3\nc = 4\n\n");
}

TEST(IniFile, savesAndReadsAnyBytes) {
    const std::string path = temporaryPath("IniFile_test.ini");
    IniFile document;
    std::mt19937 random(20240611);
    std::string allBytes;
    for (int i = 0; i < 256; ++i)
        allBytes += static_cast<char>(i);
    document.set(allBytes, allBytes, allBytes);
    for (int i = 0; i < 200; ++i) {
        std::string text;
        for (unsigned length = random() % 9; length > 0; --length)
            text += "\n\\#; \t[]=a\r"[random() % 11];
        document.set("s" + text, text + "k", text);
    }
    ASSERT_TRUE(document.Save(path));
    EXPECT_EQ(IniFile(path).toString(), document.toString());
    std::remove(path.c_str());
}

TEST(IniFile, filesReadOnPastANulAndStringsDoNot) {
    const std::string path = temporaryPath("IniFile_nul.ini");
    const std::string text("a = 1\0x\nb = 2", 13);
    std::ofstream(path, std::ios::binary) << text;
    IniFile document(path);
    EXPECT_EQ(document.get("", "a"), std::string("1\0x", 3));
    EXPECT_EQ(document.get("", "b"), "2");
    EXPECT_EQ(textOf(text.c_str()), "a = 1\n\n");
    std::remove(path.c_str());
}

TEST(IniFile, tellsWhatCannotBeOpened) {
    IniFile document(temporaryPath("no such folder/x.ini"));
    EXPECT_EQ(document.toString(), "");
    EXPECT_FALSE(document.Save(temporaryPath("no such folder/x.ini")));
    document.set("", "a", "1");
    EXPECT_FALSE(document.Save("/dev/full"));
    EXPECT_EQ(IniFile(testing::TempDir()).toString(), "");
}

TEST(IniIterator, walksSectionsAndValues) {
    IniFile document;
    document.setFromString("u=0\n[A]\nx=1\ny=2\n[B]\nz=3\n");
    document.get("A0", "gone");
    document.removeValue("A0", "gone");
    std::string walked;
    const auto it = document.newIterator();
    for (; it->isSectionAvail(); it->nextSection())
        for (walked += "[" + it->currentSection() + "]"; it->isValueAvail(); it->nextValue())
            walked += it->currentKey() + it->currentValue();
    EXPECT_EQ(walked, "[]u0[A]x1y2[A0][B]z3");
    it->nextSection();
    it->nextValue();
    EXPECT_FALSE(it->isSectionAvail());
    EXPECT_FALSE(it->isValueAvail());
    EXPECT_EQ(it->currentSection() + it->currentKey() + it->currentValue(), "");
    EXPECT_FALSE(IniFile().newIterator()->isValueAvail());
}

TEST(IniEscapes, haveTheirTable) {
    EXPECT_EQ(escapeIniStrings("\n\\#; \t[]="), "\\n\\\\\\#\\;\\ \\t\\0\\1\\2");
    EXPECT_EQ(escapeIniStrings("Ubuntu (Regular)"), "Ubuntu\\ (Regular)");
    EXPECT_EQ(escapeIniStrings(std::string("\0\r", 2)), std::string("\0\r", 2));
    EXPECT_EQ(unescapeIniStrings("\\q\\0\\1\\2\\n\\"), "q[]=\n");
}

TEST(SeparatedString, splits) {
    using Tokens = std::vector<std::string>;
    EXPECT_EQ(parseSeperatedString("a,,b", ','), (Tokens{"a", "", "b"}));
    EXPECT_EQ(parseSeperatedString("a,b,", ','), (Tokens{"a", "b"}));
    EXPECT_EQ(parseSeperatedString(",a", ','), (Tokens{"", "a"}));
    EXPECT_EQ(parseSeperatedString("", ','), Tokens{});
    EXPECT_EQ(parseSeperatedString("m|km|km/h", '|'), (Tokens{"m", "km", "km/h"}));
}

} // namespace
} // namespace skyvane
