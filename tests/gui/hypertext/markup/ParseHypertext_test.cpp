#include "gui/hypertext/markup/ParseHypertext.h"

#include "chart/elements/HypertextPage.h"
#include "gui/hypertext/RecordingCanvas.h"
#include "gui/hypertext/markup/CleanMarkup.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

/// The tree without its places.
std::string treeOf(const std::string& page) {
    const auto root = parseHypertext(page);
    if (!root)
        return "nothing";
    RecordingCanvas canvas;
    root->calcRelativeViewPort(canvas, canvas.style(), 100000);
    std::string tree = root->Print(0), bare;
    for (size_t i = 0; i < tree.size(); ++i) {
        if (tree.compare(i, 2, " [") == 0)
            i = tree.find('\n', i);
        bare += tree[i];
    }
    return bare;
}

TEST(CleanMarkup, TakesBlanksAndCommentsButNotWhatIsQuoted) {
    EXPECT_EQ("\\Ta b\\n", cleanMarkup("\\T\"a b\"\\n"));
    EXPECT_EQ("\\Tab\\n", cleanMarkup("\\T a\tb\r\n\\n"));
    EXPECT_EQ("ac#d", cleanMarkup("#one\n#two\na\n# b\nc #d\n#end"));
    EXPECT_EQ("\\T\\\"a\\n", cleanMarkup("\\T\\\"a\\n"));
    // A backslash that is escaped itself still keeps the quote behind it.
    EXPECT_EQ("\\\\\"b", cleanMarkup("\\\\\" b"));
}

TEST(ParseHypertext, ReadsEachConstruct) {
    EXPECT_EQ("Text \"a\"b\\c\"\n", treeOf("\\T\"a\\\"b\\\\c\"\\n behind it"));
    EXPECT_EQ("Head\n Text \"x\"\n", treeOf("\\H\\Tx\\n\\n"));
    EXPECT_EQ("Link a.hti\n Text \"x y\"\n", treeOf("\\L\"a.hti\"\\\\T\"x y\"\\n\\n"));
    EXPECT_EQ("Style -2 centred\n Text \"x\"\n", treeOf("\\S-2\\300\\-5\\0\\1\\\\Tx\\n\\n"));
    EXPECT_EQ("Figure a/b.png\n", treeOf("\\F a/b.png \\0.1\\0\\n"));
    EXPECT_EQ("Rows\n Text \"a\"\n Columns\n  Text \"b\"\n  Text \"c\"\n Rows\n",
              treeOf("\\R \\T a\\n \\C \\Tb\\n \\Tc\\n \\n \\R\\n \\n"));
}

TEST(ParseHypertext, TakesTheSeparatorsThatChartElementsWrite) {
    HypertextPage page;
    page.heading("Elevation: \"20\" \\feet");
    page.line("asphalt\n#3");
    EXPECT_EQ("Rows\n Style 1\n  Text \"Elevation: '20' \\feet\"\n Text \"asphalt|#3\"\n", treeOf(page.text()));
    EXPECT_EQ("Rows\n Text \"a\"\n Text \"b\"\n", treeOf("\\R\\\\Ta\\n\\\\Tb\\n\\\\n"));
}

TEST(ParseHypertext, ShowsNothingOfAWrongPage) {
    for (const char* page : {"", "plain", "\\", "\\T", "\\Tnever closes", "\\X1\\n", "\\R\\Ta\\n", "\\La\\Tx\\nx",
                             "\\Fa\\1\\n", "\\S1\\2\\\\Tx\\n\\n", "\\H\\n", "\\H\\Ta\\n\\Tb\\n\\n", "\\Rx\\n"})
        EXPECT_EQ("nothing", treeOf(page)) << page;
    std::string deep;
    for (int i = 0; i < 10000; ++i)
        deep += "\\R";
    EXPECT_EQ(nullptr, parseHypertext(deep));
    EXPECT_EQ(nullptr, parseHypertext(std::string(longestHypertext + 1, '#')));
    EXPECT_EQ(nullptr, parseHypertext("\\L" + std::string(5000, 'x') + "\\\\Ta\\n\\n"));
}

TEST(ParseHypertext, ReadsWhatIsNoUtf8) {
    EXPECT_EQ("Text \"a?b\"\n", treeOf("\\Ta\xff"
                                       "b\\n"));
}

} // namespace
} // namespace skyvane
