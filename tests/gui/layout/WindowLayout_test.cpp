#include "gui/layout/WindowLayout.h"

#include "core/ini/IniFile.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

using Rect = irr::core::rect<int>;

WindowLayout layoutOf(const char* text) {
    IniFile document;
    document.setFromString(text);
    return WindowLayout::read(document);
}

std::string text(const Rect& rect) {
    return std::to_string(rect.UpperLeftCorner.X) + "," + std::to_string(rect.UpperLeftCorner.Y) + "," +
           std::to_string(rect.LowerRightCorner.X) + "," + std::to_string(rect.LowerRightCorner.Y);
}

} // namespace

TEST(WindowLayout, AnElementCarriesEveryKeyOfItsSection) {
    const WindowLayout layout = layoutOf("EleCount = 1\nRatio = 0.5625\n"
                                         "[E0]\nType = CheckBox\nId = on\nRect = 0.1,0.2,0.3,0.4\nText = Switch\\ it\n"
                                         "VisibilityDomain = 3\nHAlign = Left\nVAlign = Center\nDefault = 1\n"
                                         "Hides = 2\nSwitches = 4\nExclusiveCounterParts = a,b\n");
    ASSERT_EQ(1u, layout.elements.size());
    const LayoutElement& element = layout.elements[0];
    EXPECT_EQ(0.5625, layout.ratio);
    EXPECT_EQ(LayoutElement::Kind::CheckBox, element.kind);
    EXPECT_EQ("on", element.id);
    EXPECT_EQ("Switch it", element.text);
    EXPECT_EQ(3, element.domain);
    EXPECT_EQ(LayoutElement::Near, element.horizontal);
    EXPECT_EQ(LayoutElement::Centre, element.vertical);
    EXPECT_EQ("1", element.defaultText);
    EXPECT_EQ(2, element.hides);
    EXPECT_EQ(4, element.switches);
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), element.partners);
    EXPECT_EQ("100,100,300,200", text(elementRect(element.rect, Rect(0, 0, 1000, 500))));
}

TEST(WindowLayout, MissingKeysUnknownTypesAndAbsurdNumbersAreTamed) {
    EXPECT_TRUE(layoutOf("[E0]\nType = Button\n").elements.empty());
    EXPECT_TRUE(layoutOf("EleCount = -5\n[E0]\nType = Button\n").elements.empty());
    const WindowLayout layout = layoutOf("EleCount = 2000000000\nRatio = nan\n[E0]\nType = Buton\n[E1]\nType = Text\n"
                                         "[E2]\nType = Button\nRect = 1e300,inf,-1e300,9,7\n[E5000]\nType = Button\n");
    ASSERT_EQ(2u, layout.elements.size());
    EXPECT_EQ(WindowLayout::standardRatio, layout.ratio);
    EXPECT_EQ(LayoutElement::Far, layout.elements[0].horizontal);
    EXPECT_EQ(-1, layout.elements[0].hides);
    const LayoutRect& rect = layout.elements[1].rect;
    EXPECT_LE(rect.left, rect.right);
    EXPECT_LE(rect.top, rect.bottom);
    EXPECT_GE(rect.left, -10.0);
    EXPECT_LE(rect.bottom, 10.0);
    EXPECT_GT(layoutOf("Ratio = 1e-300\n").ratio, 0.01);
    EXPECT_LT(layoutOf("Ratio = 1e300\n").ratio, 100.0);
}

TEST(WindowLayout, EditTypesChooseTheKeyboard) {
    EXPECT_EQ(-1, editIdOf("INT_EDIT"));
    EXPECT_EQ(-2, editIdOf("DOUBLE_EDIT"));
    EXPECT_EQ(-3, editIdOf(""));
    EXPECT_EQ(-3, editIdOf("HEX_EDIT"));
    EXPECT_EQ(-4, editIdOf("NO_EDIT"));
    EXPECT_EQ(-5, editIdOf("MULTILINE_STRING_EDIT"));
    EXPECT_EQ(-6, editIdOf("DESTINATION_EDIT"));
    EXPECT_EQ(-7, editIdOf("TERMINAL_EDIT"));
}

TEST(WindowLayout, AWindowTakesTheLargestPlaceOfItsRatio) {
    EXPECT_EQ("280,0,1000,720", text(windowRect(Rect(0, 0, 1280, 720), 1.0)));
    EXPECT_EQ("0,0,1280,720", text(windowRect(Rect(0, 0, 1280, 720), 1.77778)));
    EXPECT_EQ("0,438,720,842", text(windowRect(Rect(0, 0, 720, 1280), 1.77778)));
    EXPECT_EQ("438,0,843,720", text(windowRect(Rect(0, 0, 1280, 720), 0.5625)));
    EXPECT_EQ("150,100,250,200", text(windowRect(Rect(100, 100, 300, 200), 1.0)));
}

TEST(WindowLayout, AKeptShapeIsCentredWhereTheElementWouldStand) {
    const LayoutRect square{0.25, 0.25, 0.75, 0.75}; // a square of a square design
    EXPECT_EQ("250,25,750,75", text(elementRect(square, Rect(0, 0, 1000, 100))));
    EXPECT_EQ("475,25,525,75", text(elementRect(square, Rect(0, 0, 1000, 100), 1.0)));
    EXPECT_EQ("25,475,75,525", text(elementRect(square, Rect(0, 0, 100, 1000), 1.0)));
    EXPECT_EQ("60,70,60,70", text(elementRect({0.5, 0.5, 0.5, 0.5}, Rect(10, 20, 110, 120), 1.0)));
}

} // namespace skyvane
