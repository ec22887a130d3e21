#include "displays/drawing/Drawer2D.h"
#include "gui/elements/AggregatableGUIElementAdapter.h"
#include "gui/elements/AggregateGUIElement.h"
#include "gui/elements/BeautifulGUIImage.h"
#include "gui/elements/BeautifulGUIText.h"
#include "gui/elements/ColorWindow.h"
#include "gui/elements/ScrollBar.h"
#include "gui/font/FontFixture.h"
#include "gui/skin/Skin.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

using irr::core::rect;
using irr::gui::IGUIElement;

constexpr int width = 1280, height = 720, buttonWidth = 121, buttonHeight = 47;

/// Every kind of element of the engine in every state, in the skin of the program. With SKYVANE_TEST_PICTURES set, the
/// frames are kept to be looked at.
class Gallery : public ::testing::Test {
protected:
    Gallery() : fonts(width, height) {}

    void SetUp() override {
        const std::string media = sourceFolder() + "build/release/media/";
        if (!fonts.gl || !std::filesystem::exists(media + "windowBg.png"))
            GTEST_SKIP() << "no display, or the drawings aren't rendered";
        drawer = std::make_unique<Drawer2D>(fonts.gl.device());
        gui = fonts.gl.device()->getGUIEnvironment();
        skin = EngineRef<Skin>::adopt(new Skin(gui));
        skin->setButtonSize(buttonWidth, buttonHeight);
        skin->loadMedia(drawer.get(), media);
        FlexibleFont* font = fonts.load("ubuntu-regular.fnt");
        const float scale = font->calculateOptimalScale(L"O_O_O_O_", {buttonWidth, buttonHeight});
        font->setDefaultScale({scale, scale});
        skin->setFont(font);
        gui->setSkin(skin.get());
    }

    static rect<int> at(int x, int y, int w = buttonWidth, int h = buttonHeight) { return {x, y, x + w, y + h}; }

    irr::gui::IGUIButton* button(rect<int> place, const wchar_t* text, const char* style = "",
                                 IGUIElement* parent = nullptr) {
        irr::gui::IGUIButton* made = gui->addButton(place, parent, -1, text);
        Skin::setButtonStyle(made, style);
        return made;
    }

    void draw(const char* picture) {
        fonts.gl.begin(skin->getColor("bg"));
        drawer->setColor(irr::video::SColor(0xff3f78b0));
        drawer->drawFilledRect({0, 0, width, 60}, irr::video::SColor(0xff3f78b0));
        drawer->setColor(irr::video::SColor(0xffffffff));
        drawer->flush();
        gui->drawAll();
        fonts.gl.end();
        fonts.gl.savePicture(picture);
    }

    FontFixture fonts;
    std::unique_ptr<Drawer2D> drawer;
    irr::gui::IGUIEnvironment* gui = nullptr;
    EngineRef<Skin> skin;
};

} // namespace

TEST_F(Gallery, ButtonsInEveryStyleAndState) {
    for (unsigned i = 0; i < skin->getButtonStyleCount(); ++i)
        ASSERT_NE(nullptr, skin->getButtonStyle(i));
    const char* const colored[] = {"",           "stdNormal", "greenNormal", "redNormal",  "blueVis",    "yellowVis",
                                   "magentaVis", "brownVis",  "orangeVis",   "cyanVis",    "greyVis",    "blueRow",
                                   "greenRow",   "redRow",    "yellowRow",   "magentaRow", "brownRow",   "orangeRow",
                                   "cyanRow",    "greyRow",   "stdRow",      "menuRow",    "menuStdRow", "procRow",
                                   "procStdRow", "directRow"};
    int column = 0, row = 0;
    for (const char* style : colored) {
        for (int state = 0; state < 3; ++state) {
            irr::gui::IGUIButton* made = button(at(8 + column * 424 + state * 140, 4 + row * 55, 135),
                                                irr::core::stringw(*style ? style : "plain").c_str(), style);
            made->setIsPushButton(true);
            made->setPressed(state == 1);
            made->setEnabled(state != 2);
        }
        if (++row == 9)
            row = 0, ++column;
    }
    const char* const images[] = {"roll_leftNormal", "roll_rightNormal", "yaw_leftNormal", "yaw_rightNormal",
                                  "pitch_upNormal",  "pitch_downNormal", "directNormal",   "procNormal",
                                  "direct2Normal",   "proc2Normal",      "binTransparent", "renameTransparent"};
    int x = 8;
    for (const char* style : images) {
        EXPECT_TRUE(skin->getButtonStyle(style)->image) << style;
        button(at(x, 510, 90, 70), L"", style);
        button(at(x, 590, 90, 70), L"", style)->setEnabled(false);
        x += 100;
    }
    draw("skin-buttons.png");
    // A red button is red, a plain one isn't.
    const auto red = fonts.gl.pixel(8 + 20, 4 + 3 * 55 + 12), plain = fonts.gl.pixel(8 + 20, 4 + 12);
    EXPECT_GT(red.getRed(), 2 * red.getGreen());
    EXPECT_LT(plain.getRed(), 2 * plain.getGreen());
}

TEST_F(Gallery, ElementsOfTheEngine) {
    auto* window = gui->addWindow({20, 70, 640, 700}, false, L"A window");
    gui->addStaticText(L"Static text, left", at(20, 60, 240, 30), false, true, window);
    auto* gray = gui->addStaticText(L"Disabled text", at(280, 60, 240, 30), false, true, window);
    gray->setEnabled(false);
    gui->addEditBox(L"edit box", at(20, 100, 260), true, window);
    auto* focused = gui->addEditBox(L"with the focus", at(300, 100, 260), true, window);
    gui->addEditBox(L"disabled", at(20, 155, 260), true, window)->setEnabled(false);
    gui->addCheckBox(true, at(20, 210, 260), window, -1, L"checked");
    gui->addCheckBox(false, at(300, 210, 260), window, -1, L"not checked");
    gui->addCheckBox(true, at(20, 260, 260), window, -1, L"checked, disabled")->setEnabled(false);
    auto* list = gui->addListBox(at(20, 320, 260, 200), window, -1, true);
    for (int i = 0; i < 12; ++i)
        list->addItem((irr::core::stringw(L"Item ") + irr::core::stringw(i)).c_str());
    list->setItemHeight(buttonHeight);
    list->setSelected(1);
    auto* combo = gui->addComboBox(at(300, 320, 260), window);
    combo->addItem(L"combo box");
    gui->addComboBox(at(300, 375, 260), window)->setEnabled(false);
    auto* bar = gui->addScrollBar(true, at(300, 440, 260, 35), window);
    bar->setMax(100);
    bar->setPos(30);
    button(at(20, 550), L"Cancel", "redNormal", window);
    button(at(300, 550), L"Help", "", window);
    button(at(440, 550), L"Ok", "greenNormal", window);
    auto* tabs = gui->addTabControl({680, 380, 1260, 640}, nullptr, true, true);
    tabs->setTabHeight(buttonHeight);
    tabs->addTab(L"First");
    tabs->addTab(L"Second");
    gui->addMessageBox(L"Message", L"A message box with a text that is long enough to need more than one line.", false,
                       irr::gui::EMBF_OK | irr::gui::EMBF_CANCEL)
        ->setRelativePosition(irr::core::position2di(700, 90));
    gui->setFocus(focused);
    draw("skin-elements.png");

    skin->setGUITransparency(128);
    skin->setGUIBrightness(0.5f);
    draw("skin-dim.png");
}

TEST_F(Gallery, AnOpenComboBoxHasRowsForFingers) {
    auto* combo = gui->addComboBox(at(300, 600, 260));
    for (int i = 0; i < 5; ++i)
        combo->addItem((irr::core::stringw(L"Choice ") + irr::core::stringw(i)).c_str());
    irr::SEvent press{};
    press.EventType = irr::EET_MOUSE_INPUT_EVENT;
    press.MouseInput.X = 320;
    press.MouseInput.Y = 620;
    press.MouseInput.Event = irr::EMIE_LMOUSE_PRESSED_DOWN;
    fonts.gl.device()->postEventFromUser(press);
    press.MouseInput.Event = irr::EMIE_LMOUSE_LEFT_UP;
    fonts.gl.device()->postEventFromUser(press);
    draw("skin-combo-first.png");
    draw("skin-combo.png");
    IGUIElement* list = nullptr;
    for (IGUIElement* child : combo->getChildren())
        if (child->getType() == irr::gui::EGUIET_LIST_BOX)
            list = child;
    ASSERT_NE(nullptr, list);
    EXPECT_GE(list->getAbsolutePosition().getHeight(), 5 * buttonHeight);
    EXPECT_LE(list->getAbsolutePosition().LowerRightCorner.Y, 600) << "opens above where there is no room below";
}

TEST_F(Gallery, ListsOfOwnElements) {
    FlexibleFont* font = fonts.load("ubuntu-regular.fnt");
    irr::video::ITexture* sign = skin->getButtonStyle("directNormal")->image.get();
    const irr::video::SColor white(0xffffffff);
    AggregateGUIElement::Elements rows;
    for (int i = 0; i < 9; ++i) {
        AggregateGUIElement::Options line;
        line.horizontal = true;
        const std::wstring text = i == 3 ? L"A line that is too long for its place in this list" : L"Flight plan";
        LayoutWish wide, square;
        wide.recommendedSpace = 4.0f;
        square.maintainAspectRatio = true;
        auto* bin = button(at(0, 0), L"", "binTransparent");
        rows.push_back(new AggregateGUIElement(
            gui, line,
            {new BeautifulGUIImage(gui, drawer.get(), sign, {white, white, white, white}, square),
             new BeautifulGUIText(gui, font, text, {}, wide), new AggregatableGUIElementAdapter(gui, bin)},
            {}));
    }
    AggregateGUIElement::Options options;
    options.scrollable = true;
    options.subElementWeight = 0.13f;
    rows.front()->setActive(true);
    auto* list = new AggregateGUIElement(gui, options, {}, rows, gui->getRootGUIElement(), {40, 90, 500, 680});
    list->drop();
    auto* bar =
        new ScrollBar(gui, 1.0f, false, -1, nullptr, LayoutWish(), gui->getRootGUIElement(), {506, 90, 540, 680});
    bar->drop();
    bar->linkToScrollable(list);
    list->setScrollShare(0.3f);
    for (int i = 0; i < 3; ++i)
        draw("skin-list.png");
    const AllocationCounter counter;
    gui->drawAll();
    EXPECT_EQ(0u, counter.count());
}

TEST_F(Gallery, AColorIsMixedWithSliders) {
    ColorWindow mixer(gui, irr::video::SColor(160, 30, 200, 90), true);
    draw("skin-color.png");
    irr::SEvent event{};
    event.EventType = irr::EET_GUI_EVENT;
    event.GUIEvent.EventType = irr::gui::EGET_SCROLL_BAR_CHANGED;
    std::vector<irr::gui::IGUIScrollBar*> sliders;
    for (IGUIElement* child : mixer.getWindow()->getChildren())
        if (child->getType() == irr::gui::EGUIET_SCROLL_BAR)
            sliders.push_back(static_cast<irr::gui::IGUIScrollBar*>(child));
    ASSERT_EQ(4u, sliders.size());
    sliders[0]->setPos(255);
    sliders[3]->setPos(7);
    event.GUIEvent.Caller = sliders[0];
    EXPECT_EQ(ColorWindow::Answer::None, mixer.processEvent(event));
    EXPECT_EQ(irr::video::SColor(7, 255, 200, 90), mixer.getColor());
}

// Texts are left out: the engine's own elements copy them at each drawing.
TEST_F(Gallery, ASteadyFrameAllocatesNothing) {
    auto* window = gui->addWindow({20, 70, 640, 700}, false, L"");
    button(at(20, 550), L"", "redNormal", window);
    button(at(160, 550), L"", "yellowVis", window)->setEnabled(false);
    button(at(300, 550), L"", "menuRow", window);
    gui->addCheckBox(true, at(20, 210, 260), window);
    gui->addScrollBar(true, at(300, 440, 260, 35), window)->setMax(100);
    gui->addComboBox(at(300, 320, 260), window);
    for (int i = 0; i < 3; ++i)
        draw("skin-steady.png");
    const AllocationCounter counter;
    gui->drawAll();
    EXPECT_EQ(0u, counter.count());
}

TEST_F(Gallery, UnknownNamesGiveNone) {
    EXPECT_EQ(nullptr, skin->getButtonTexture("never made"));
    EXPECT_EQ(nullptr, skin->getButtonStyle("never made"));
    EXPECT_EQ(nullptr, skin->getButtonStyle(skin->getButtonStyleCount()));
    ASSERT_NE(nullptr, skin->getButtonTexture("bNormal"));
    EXPECT_TRUE(skin->getButtonTexture("bNormal")->isLoaded());
    button(at(20, 550), L"plain", "never made");
    draw("skin-unknown.png");
}

TEST_F(Gallery, TextOfAStyleStaysWithItsButton) {
    button(at(10, 100), L"yellow", "yellowRow");
    EXPECT_EQ(irr::video::SColor(0xff05070a), skin->getButtonStyle("yellowRow")->textColor);
    draw("skin-text.png");
    EXPECT_EQ(irr::video::SColor(0xfff2f5f9), skin->getColor(irr::gui::EGDC_BUTTON_TEXT));
}

} // namespace skyvane
