#include "gui/hypertext/RecordingCanvas.h"
#include "gui/hypertext/elements/BreakLines.h"
#include "gui/hypertext/elements/Html.h"
#include "gui/hypertext/markup/ParseHypertext.h"

#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

class Elements : public testing::Test {
protected:
    RecordingCanvas canvas;
    std::unique_ptr<IDocElement> root;
    irr::core::rect<int> place;

    std::string layOut(const std::string& page, int width) {
        root = parseHypertext(page);
        EXPECT_NE(nullptr, root);
        place = root->calcRelativeViewPort(canvas, canvas.style(), width);
        return root->Print(0);
    }
    void draw(irr::core::rect<int> clip, int scrolled = 0, MouseState state = MouseState::Idle,
              irr::core::vector2d<int> mouse = {-1, -1}) {
        canvas.drawn.clear();
        DocPass pass{canvas, clip, state, mouse};
        root->render(irr::core::rect<int>(0, -scrolled, clip.LowerRightCorner.X, -scrolled), pass);
    }
};

TEST_F(Elements, LieWhereTheyBelong) {
    EXPECT_EQ("Text \"aa|bb\" [0,0 20,40]\n", layOut("\\T\"aa bb\"\\n", 40));
    EXPECT_EQ("Text \"aa bb\" [0,0 50,20]\n", layOut("\\T\"aa bb\"\\n", 50));
    EXPECT_EQ("Text \"aaaaaaaa|b\" [0,0 40,40]\n", layOut("\\T\"aaaaaaaa b\"\\n", 40));
    EXPECT_EQ("Text \"\" [0,0 0,0]\n", layOut("\\T\"a\"\\n", 0));
    EXPECT_EQ("Head [0,0 63,26]\n Text \"ab\" [37,0 63,26]\n", layOut("\\H\\Tab\\n\\n", 100));
    EXPECT_EQ("Style 2 [0,0 24,24]\n Text \"ab\" [0,0 24,24]\n", layOut("\\S2\\0\\0\\0\\0\\\\Tab\\n\\n", 100));
    EXPECT_EQ("Link t [35,0 65,30]\n Text \"ab\" [35,0 55,20]\n", layOut("\\Lt\\\\Tab\\n\\n", 100));
    EXPECT_EQ("Rows [0,0 100,60]\n Text \"a\" [0,0 10,20]\n Columns [0,0 100,40]\n  Text \"b\" [0,0 10,20]\n"
              "  Text \"cc|ddd\" [0,0 30,40]\n",
              layOut("\\R\\Ta\\n\\C\\Tb\\n\\T\"cc ddd\"\\n\\n\\n", 100));
    canvas.pictures["p.png"] = {200, 100};
    EXPECT_EQ("Figure p.png [0,0 100,50]\n", layOut("\\Fp.png\\0.1\\0.1\\n", 100));
    draw({0, 0, 100, 100});
    EXPECT_EQ(std::vector<std::string>{"p.png 10,5 90,45"}, canvas.drawn);
    EXPECT_EQ("Figure q.png [0,0 0,0]\n", layOut("\\Fq.png\\0.1\\0.1\\n", 100));
}

TEST_F(Elements, HugeNumbersStayWithinWhatCanBeDrawn) {
    canvas.pictures["tall"] = {1, 4096};
    std::string page = "\\R";
    for (int i = 0; i < 600; ++i)
        page += "\\S999999999\\999\\-1\\x\\7\\\\R\\Ta\\n\\Ftall\\1e30\\nan\\n\\n\\n";
    layOut(page + "\\n", 4000);
    EXPECT_GE(place.LowerRightCorner.Y, 600 * 400);
    EXPECT_LE(place.LowerRightCorner.Y, 1 << 28);
}

TEST_F(Elements, DrawOnlyWhatIsSeen) {
    std::string page = "\\R";
    for (int i = 0; i < 1000; ++i)
        page += "\\T" + std::to_string(i) + "\\n";
    layOut(page + "\\n", 100);
    draw({0, 0, 100, 30}, 20 * 500 + 5);
    EXPECT_EQ((std::vector<std::string>{"500 0,-5 30,15", "501 0,15 30,35"}), canvas.drawn);
    EXPECT_EQ(2, canvas.texts);
    draw({0, 0, 100, 30}, 20 * 500 + 5);
    EXPECT_EQ(2, canvas.texts);
}

TEST_F(Elements, OneLongTextIsDrawnInPieces) {
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += "word ";
    layOut("\\T\"" + text + "\"\\n", 40); // a word a line
    EXPECT_EQ(20000, place.LowerRightCorner.Y);
    draw({0, 0, 40, 100}, 10000);
    EXPECT_LE(canvas.texts, 2);
}

TEST_F(Elements, LinksAreButtons) {
    layOut("\\R\\Ta\\n\\Lpage.hti\\\\Tb\\n\\n\\n", 100); // the button: 40,20 to 60,50
    const irr::core::rect<int> clip(0, 0, 100, 100);
    draw(clip, 0, MouseState::Held, {10, 10});
    EXPECT_EQ((std::vector<std::string>{"a 0,0 10,20", "button 40,20 60,50", "b 45,25 55,45"}), canvas.drawn);
    draw(clip, 0, MouseState::JustPressed, {50, 30});
    EXPECT_EQ((std::vector<std::string>{"a 0,0 10,20", "pressed 40,20 60,50", "b 46,26 56,46"}), canvas.drawn);
    draw(clip, 0, MouseState::Released, {10, 10});
    draw(irr::core::rect<int>(0, 0, 100, 25), 0, MouseState::Released, {50, 30}); // hidden there
    EXPECT_TRUE(canvas.targets.empty());
    draw(clip, 0, MouseState::Released, {50, 30});
    EXPECT_EQ(std::vector<std::string>{"page.hti"}, canvas.targets);
}

TEST_F(Elements, BecomeHTML) {
    layOut("\\R\\H\\T\"a <b> & \\\"c\\\"\"\\n\\n\\C\\La.hti\\\\Tx\\n\\n\\S-1\\255\\0\\16\\1\\\\T\"y\nz\"\\n\\n\\n"
           "\\Fp.png\\0.1\\0.05\\n\\n",
           100);
    EXPECT_EQ("<table width=\"100%\" style=\"table-layout:fixed\">\n"
              "<tr><td><div align=\"center\"><u><h1>a &lt;b&gt; &amp; &quot;c&quot;</h1></u></div>\n</td></tr>\n"
              "<tr><td><table width=\"100%\" style=\"table-layout:fixed\">\n"
              "<tr><td valign=\"top\"><div align=\"center\"><a href=\"a.html\" class=\"Button\">x</a></div>\n</td>"
              "<td valign=\"top\"><div align=\"center\"><font color=\"#ff0010\" size=\"-1\">y<br>z</font></div>\n</td>"
              "</tr>\n</table>\n</td></tr>\n"
              "<tr><td><img src=\"p.png\" alt=\"\" width=\"80%\" hspace=\"10%\" vspace=\"5%\">\n</td></tr>\n"
              "</table>\n",
              root->toHTML());
    const std::string page = makeHTMLPage("A & B", "body");
    EXPECT_NE(std::string::npos, page.find("<title>A &amp; B</title>"));
}

/// Letter by letter, measuring the whole line each time.
std::string breakSlowly(const std::wstring& text, int width) {
    std::wstring result;
    size_t start = 0, blank = std::wstring::npos;
    std::wstring copy = text;
    for (size_t i = 0; i < copy.size(); ++i) {
        if (copy[i] == L'\n') {
            start = i + 1;
            blank = std::wstring::npos;
            continue;
        }
        if (copy[i] == L' ')
            blank = i;
        if (static_cast<int>(i + 1 - start) * 10 > width && blank != std::wstring::npos) {
            copy[blank] = L'\n';
            start = blank + 1;
            i = blank;
            blank = std::wstring::npos;
        }
    }
    return encodeUtf8(copy);
}

TEST(BreakLines, BreaksAsTheSlowWayDoes) {
    std::mt19937 random(20260601);
    Style style;
    style.font = &boxFont();
    for (int round = 0; round < 300; ++round) {
        std::wstring text;
        const unsigned length = random() % 400;
        for (unsigned i = 0; i < length; ++i)
            text += L"abcdefgh  \n"[random() % (round % 2 ? 10 : 11)];
        const int width = 5 + static_cast<int>(random() % 300);
        std::string joined;
        const BrokenText broken = breakLines(text, width, style);
        size_t lines = 0;
        for (const BrokenText::Piece& piece : broken.pieces) {
            lines = static_cast<size_t>(piece.top) / 20;
            while (static_cast<size_t>(std::count(joined.begin(), joined.end(), '\n')) < lines)
                joined += '\n';
            joined += encodeUtf8(piece.text);
        }
        std::string expected = breakSlowly(text, width);
        while (!expected.empty() && expected.back() == '\n')
            expected.pop_back();
        while (!joined.empty() && joined.back() == '\n')
            joined.pop_back();
        ASSERT_EQ(expected, joined) << "width " << width << " round " << round;
    }
}

TEST(BreakLines, TakesAWordOfAMillionLetters) {
    Style style;
    style.font = &boxFont();
    const BrokenText broken = breakLines(std::wstring(1000000, L'x') + L" y", 100, style);
    EXPECT_EQ(40, broken.height);
}

TEST(Style, KeepsTextsReadable) {
    EXPECT_EQ(0xff5fb0ffu, readableColor(0xff5fb0ff, 0xff101010));
    EXPECT_EQ(0xffffffffu, readableColor(0xff000000, 0xff101010));
    EXPECT_EQ(0xff000000u, readableColor(0xfff0f0f0, 0xffffffff));
}

} // namespace
} // namespace skyvane
