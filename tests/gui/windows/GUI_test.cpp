#include "gui/windows/GUI.h"

#include "core/ini/IniFile.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

using irr::gui::IGUICheckBox;
using irr::gui::IGUIElement;

class GUITest : public ::testing::Test {
protected:
    GUITest() : device(EngineRef<irr::IrrlichtDevice>::adopt(irr::createDevice(irr::video::EDT_NULL))) {}

    std::unique_ptr<GUI> make(const std::string& text) {
        IniFile document;
        document.setFromString(text.c_str());
        irr::gui::IGUIWindow* window =
            addWindowForRatio(device->getGUIEnvironment(), &document, {0, 0, 1280, 720}, false, nullptr, -1);
        return std::make_unique<GUI>(device->getGUIEnvironment(), &document, windowArea(window), window, false);
    }
    static void tap(GUI& gui, const char* id) {
        IGUICheckBox* box = gui.get<IGUICheckBox>(id);
        box->setChecked(!box->isChecked());
        irr::SEvent::SGUIEvent event{};
        event.Caller = box;
        event.EventType = irr::gui::EGET_CHECKBOX_CHANGED;
        gui.Update(event);
    }
    static bool isChecked(GUI& gui, const char* id) { return gui.get<IGUICheckBox>(id)->isChecked(); }
    static bool isVisible(GUI& gui, const char* id) { return gui.getElement(id)->isVisible(); }

    EngineRef<irr::IrrlichtDevice> device;
};

std::string element(int index, const char* type, const char* id, const char* more = "") {
    return "[E" + std::to_string(index) + "]\nType = " + type + "\nId = " + id + "\nRect = 0,0,0.5,0.1\n" + more;
}

} // namespace

TEST_F(GUITest, EveryTypeBecomesItsElementAndUnknownOnesNothing) {
    const auto gui =
        make("EleCount = 11\n" + element(0, "Button", "b", "Text = Ok\n") + element(1, "Text", "t") +
             element(2, "ListBox", "l") + element(3, "ComboBox", "c") + element(4, "CheckBox", "x") +
             element(5, "VerticalScrollBar", "v") + element(6, "HorizontalScrollBar", "h") +
             element(7, "EditBox", "e", "EditType = INT_EDIT\nDefault = 7\nText = 3\n") +
             element(8, "SpecialRectangle", "s") + element(9, "Slider", "q") + element(10, "EditBox", "p"));
    EXPECT_EQ(9u, gui->elements.size());
    EXPECT_EQ(std::wstring(L"Ok"), gui->get<irr::gui::IGUIButton>("b")->getText());
    EXPECT_NE(nullptr, gui->get<irr::gui::IGUIStaticText>("t"));
    EXPECT_NE(nullptr, gui->get<irr::gui::IGUIListBox>("l"));
    EXPECT_NE(nullptr, gui->get<irr::gui::IGUIComboBox>("c"));
    EXPECT_NE(nullptr, gui->get<irr::gui::IGUIScrollBar>("v"));
    EXPECT_NE(nullptr, gui->get<irr::gui::IGUIScrollBar>("h"));
    EXPECT_EQ(-1, gui->getElement("e")->getID());
    EXPECT_EQ(-3, gui->getElement("p")->getID());
    EXPECT_EQ(std::wstring(L"7"), gui->getElement("e")->getText());
    gui->getElement("e")->setText(L"99");
    gui->setDefaults();
    EXPECT_EQ(std::wstring(L"7"), gui->getElement("e")->getText());
    EXPECT_EQ(nullptr, gui->getElement("q"));
    EXPECT_EQ(nullptr, gui->getElement("s"));
    EXPECT_EQ((irr::core::rect<int>(0, 0, 640, 72)), gui->getSpecialRectangle("s"));
    EXPECT_EQ(1u, gui->getAllSpecialRectangles().size());
    device->getGUIEnvironment()->drawAll();
}

TEST_F(GUITest, ARadioGroupKeepsOneBoxChecked) {
    const auto gui =
        make("EleCount = 3\n" + element(0, "CheckBox", "a", "Default = 1\nExclusiveCounterParts = b,c,nobody\n") +
             element(1, "CheckBox", "b", "Default = 1\nExclusiveCounterParts = a,c\n") +
             element(2, "CheckBox", "c", "ExclusiveCounterParts = a,b,c\n"));
    EXPECT_TRUE(isChecked(*gui, "a"));
    EXPECT_FALSE(isChecked(*gui, "b"));
    tap(*gui, "c");
    EXPECT_TRUE(isChecked(*gui, "c"));
    EXPECT_FALSE(isChecked(*gui, "a"));
    tap(*gui, "c");
    EXPECT_TRUE(isChecked(*gui, "c"));
    EXPECT_FALSE(isChecked(*gui, "a") || isChecked(*gui, "b"));
}

TEST_F(GUITest, GroupsFollowTheirCheckBox) {
    const auto gui = make("EleCount = 5\n" + element(0, "CheckBox", "x", "Hides = 2\nSwitches = 3\nDefault = 0\n") +
                          element(1, "Button", "hidden", "VisibilityDomain = 2\n") +
                          element(2, "Button", "off", "VisibilityDomain = 3\n") + element(3, "Button", "free") +
                          element(4, "Button", "minus", "VisibilityDomain = -1\n"));
    EXPECT_FALSE(isVisible(*gui, "hidden"));
    EXPECT_FALSE(gui->getElement("off")->isEnabled());
    EXPECT_TRUE(isVisible(*gui, "free") && isVisible(*gui, "off") && isVisible(*gui, "minus"));
    EXPECT_TRUE(gui->getElement("free")->isEnabled() && gui->getElement("minus")->isEnabled());
    tap(*gui, "x");
    EXPECT_TRUE(isVisible(*gui, "hidden"));
    EXPECT_TRUE(gui->getElement("off")->isEnabled());
    gui->setDefaults();
    EXPECT_FALSE(isVisible(*gui, "hidden"));
    gui->setVisible(false);
    EXPECT_FALSE(isVisible(*gui, "free"));
    gui->setVisible(true);
    EXPECT_TRUE(isVisible(*gui, "free"));
    EXPECT_FALSE(isVisible(*gui, "hidden"));
}

TEST_F(GUITest, ARadioButtonThatGivesWayTakesItsGroupsWithIt) {
    const auto gui =
        make("EleCount = 4\n" + element(0, "CheckBox", "a", "Default = 1\nHides = 1\nExclusiveCounterParts = b\n") +
             element(1, "CheckBox", "b", "Hides = 2\nExclusiveCounterParts = a\n") +
             element(2, "Text", "ofA", "VisibilityDomain = 1\n") + element(3, "Text", "ofB", "VisibilityDomain = 2\n"));
    EXPECT_TRUE(isVisible(*gui, "ofA"));
    tap(*gui, "b");
    EXPECT_FALSE(isVisible(*gui, "ofA"));
    EXPECT_TRUE(isVisible(*gui, "ofB"));
}

TEST_F(GUITest, ElementsOutliveTheWindowUntilTheGUIGoes) {
    const auto gui = make("EleCount = 1\n" + element(0, "Button", "b"));
    gui->getElement("b")->getParent()->remove();
    gui->getElement("b")->setText(L"still there");
    gui->setVisible(false);
}

TEST_F(GUITest, TwinsAndHollowRectanglesDoNoHarm) {
    const auto gui = make("EleCount = 3\n" + element(0, "CheckBox", "x") + element(1, "Button", "x") +
                          "[E2]\nType = Button\nRect = 9,9\n");
    EXPECT_NE(nullptr, gui->get<irr::gui::IGUIButton>("x"));
    device->getGUIEnvironment()->drawAll();
}

} // namespace skyvane
