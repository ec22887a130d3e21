#include "displays/PanelManager.h"

#include "core/Context.h"
#include "core/events/EventReceiver.h"
#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "gui/font/FlexibleFont.h"
#include "gui/menu/MenuBar.h"
#include "support/GlDevice.h"
#include "support/SourceFolder.h"
#include "support/StartAnswers.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <utility>

using namespace skyvane;
using irr::core::rect;
using irr::video::SColor;

namespace {

const SColor black(0xff000000);
const SColor colors[] = {SColor(0xffff0000), SColor(0xff00ff00), SColor(0xff0000ff)};

std::vector<std::string> calls;

/// Fills its rectangle with a colour and notes what it is told.
class ProbePanel : public IPanel {
public:
    ProbePanel(Context* context, std::string name, SColor color, bool consumes)
        : IPanel(context), name_(std::move(name)), color_(color), consumes_(consumes) {}
    void OnPageChange() override { calls.push_back(name_ + " page"); }
    void render(rect<int> area) override { context_->getDrawer()->drawFilledRect(area, color_); }
    bool processEvent(irr::SEvent) override {
        calls.push_back(name_ + " event");
        return !consumes_;
    }
    std::string getName() override { return name_; }
    void OnHideGUI() override { calls.push_back(name_ + " hide"); }
    void applyOptimizedSettings(OptimizedSettings settings) override {
        calls.push_back(name_ + " preset " + std::to_string(settings));
    }

private:
    std::string name_;
    SColor color_;
    bool consumes_;
};

class ProbeFactory : public IPanelFactory {
public:
    explicit ProbeFactory(Context* context) : context_(context) {}
    void loadSetupFromIni(IniFile* ini, std::string section) override {
        section_ = section;
        color_ = colors[section.back() % 3];
        consumes_ = ini->get(section, "consumes") == "1";
    }
    bool setup(IniFile*, std::string) override { return false; }
    std::unique_ptr<IPanel> Create() override {
        auto panel = std::make_unique<ProbePanel>(context_, section_, color_, consumes_);
        made.push_back(panel.get());
        return panel;
    }
    std::string getName() override { return "Probe"; }
    void renderPreview(rect<int> area) override { previews.push_back(area); }

    std::vector<rect<int>> previews;
    std::vector<IPanel*> made;

private:
    Context* context_;
    std::string section_;
    SColor color_;
    bool consumes_ = false;
};

class PanelManagerTest : public testing::Test {
protected:
    static constexpr int width = 320, height = 200;

    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        char folder[] = "/tmp/skyvane_panels_XXXXXX";
        ASSERT_TRUE(mkdtemp(folder));
        home = folder;
        answerStartQuestions(folder);
        std::filesystem::create_directory_symlink(sourceFolder() + "media", home + "/media");
        context = std::make_unique<Context>(gl.device(), (home + "/skyvane").c_str(), false);
        panels = context->getPanelManager();
        auto made = std::make_unique<ProbeFactory>(context.get());
        factory = made.get();
        panels->addPanelFactory(std::move(made));
        panels->addPanelFactory(nullptr);
        setClock(&clock);
        calls.clear();
    }
    void TearDown() override {
        setClock(nullptr);
        context.reset();
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
    }

    void addPanel(const std::string& page, double left, double top, double right, double bottom,
                  const std::string& factoryIndex = "0") {
        const std::string section = "P" + std::to_string(count++);
        ini.set(section, "FactoryIndex", factoryIndex);
        ini.set(section, "Page", page);
        ini.set(section, "ViewPortSX", std::to_string(left));
        ini.set(section, "ViewPortSY", std::to_string(top));
        ini.set(section, "ViewPortTX", std::to_string(right));
        ini.set(section, "ViewPortTY", std::to_string(bottom));
        ini.set("", "PanelCount", std::to_string(count));
    }
    void load() { panels->loadPanelSettingsFromIni(&ini, nullptr, false, false); }
    void frame() {
        gl.begin();
        panels->Render();
        panels->RenderAfterGUI();
        gl.end();
    }
    bool key(irr::EKEY_CODE code, bool down) {
        irr::SEvent event{};
        event.EventType = irr::EET_KEY_INPUT_EVENT;
        event.KeyInput.Key = code;
        event.KeyInput.PressedDown = down;
        return panels->processEvent(event);
    }
    bool mouse(irr::EMOUSE_INPUT_EVENT kind, int x, int y) {
        irr::SEvent event{};
        event.EventType = irr::EET_MOUSE_INPUT_EVENT;
        event.MouseInput.Event = kind;
        event.MouseInput.X = x;
        event.MouseInput.Y = y;
        return panels->processEvent(event);
    }
    /// Below lies the menu's bar.
    int panelsBottom() { return MenuBar::panelArea(context->getScreenMetrics()).bottom; }
    std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }

    ManualClock clock;
    GlDevice gl{width, height};
    std::string home;
    std::unique_ptr<Context> context;
    PanelManager* panels = nullptr;
    ProbeFactory* factory = nullptr;
    IniFile ini;
    int count = 0;
};

using Calls = std::vector<std::string>;

TEST_F(PanelManagerTest, laterPanelsDrawOnTopAndAreAskedFirst) {
    addPanel("0", 0, 0, 1, 1);
    addPanel("0", 0.5, 0, 1, 1);
    addPanel("1", 0, 0, 1, 1);
    load();
    frame();
    EXPECT_EQ(gl.pixel(80, 100), colors['0' % 3]);
    EXPECT_EQ(gl.pixel(240, 100), colors['1' % 3]);
    EXPECT_EQ(gl.pixel(159, 0), colors['0' % 3]);
    EXPECT_EQ(gl.pixel(160, panelsBottom() - 1), colors['1' % 3]);

    EXPECT_TRUE(mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, 10, 10));
    EXPECT_EQ(takeCalls(), (Calls{"P1 event", "P0 event"}));
    panels->unload();
    ini.set("P1", "consumes", "1");
    load();
    EXPECT_FALSE(mouse(irr::EMIE_LMOUSE_LEFT_UP, 20, 10));
    EXPECT_EQ(takeCalls(), Calls{"P1 event"});
}

TEST_F(PanelManagerTest, damagedSectionsAreSkippedButCountAsPages) {
    addPanel("0", 0, 0, 1, 1, "-1");
    addPanel("1", 0, 0, 1, 1, "99999999999");
    addPanel("2", 0, 0, 1, 1, "1"); // a place to come
    addPanel("3", 0, 0, 1, 1, "x");
    addPanel("1", 0, 0, 1, 1);
    ini.set("", "PanelCount", "1000000000");
    load();
    EXPECT_EQ(panels->getPageCount(), 4);
    panels->hideAllPanelGUI();
    EXPECT_EQ(takeCalls(), Calls{"P4 hide"});
}

TEST_F(PanelManagerTest, pageKeysTurnOncePerReleaseAndWrapRound) {
    addPanel("0", 0, 0, 1, 1);
    addPanel("2", 0, 0, 1, 1);
    load();
    EXPECT_FALSE(key(irr::KEY_NEXT, true));
    EXPECT_FALSE(key(irr::KEY_NEXT, true));
    EXPECT_EQ(panels->getCurrentPage(), 0);
    key(irr::KEY_NEXT, false);
    EXPECT_EQ(panels->getCurrentPage(), 1);
    EXPECT_EQ(takeCalls(), (Calls{"P0 page", "P1 page"})) << "those of other pages too";
    clock.advance(10);
    frame();
    EXPECT_EQ(gl.pixel(160, 100), black) << "a page without panels";
    key(irr::KEY_NEXT, false);
    key(irr::KEY_NEXT, false);
    EXPECT_EQ(panels->getCurrentPage(), 0);
    key(irr::KEY_PRIOR, false);
    EXPECT_EQ(panels->getCurrentPage(), 2);
    panels->unload();
    EXPECT_EQ(panels->getCurrentPage(), 0);
    EXPECT_EQ(panels->getPageCount(), 1);
}

TEST_F(PanelManagerTest, theFullScreenPanelStandsAloneAboveTheButtons) {
    addPanel("0", 0, 0, 1, 1);
    addPanel("0", 0, 0, 0.1, 0.1);
    load();
    panels->updateNonMessageYArea(0, height);
    panels->setFullScreenPanel(factory->made.at(1));
    EXPECT_EQ(takeCalls(), (Calls{"P0 hide", "P1 hide"}));
    frame();
    const int top = height - context->getScreenMetrics().buttonHeight;
    EXPECT_EQ(gl.pixel(100, top - 1), colors['1' % 3]);
    EXPECT_EQ(gl.pixel(100, top), black);
    panels->nextPage();
    EXPECT_EQ(panels->getFullScreenPanel(), nullptr) << "a page turn ends it";
}

TEST_F(PanelManagerTest, aLockKeepsPointersFromPanels) {
    addPanel("0", 0, 0, 1, 1);
    load();
    panels->setLock(true);
    EXPECT_FALSE(mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, 10, 10));
    EXPECT_TRUE(key(irr::KEY_KEY_A, true));
    EXPECT_EQ(takeCalls(), Calls{"P0 event"}) << "keys pass";
}

TEST_F(PanelManagerTest, aGUIElementUnderThePointerKeepsTheEvent) {
    addPanel("0", 0, 0, 1, 1);
    load();
    auto* button = gl.device()->getGUIEnvironment()->addButton(rect<int>(50, 50, 100, 100));
    EXPECT_FALSE(mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, 60, 60));
    button->setVisible(false);
    EXPECT_TRUE(mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, 61, 60));
    EXPECT_EQ(takeCalls(), Calls{"P0 event"});
}

TEST_F(PanelManagerTest, aKeyedMessageStandsUntilItIsRemovedOrDismissed) {
    load();
    int owner = 0;
    panels->setMessage(&owner, "GPS: no signal", MESSAGE_RED, -1);
    for (int i = 0; i < 50; ++i) {
        frame();
        clock.advance(0.1);
    }
    const auto redPixels = [&] {
        int red = 0;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                red += gl.pixel(x, y) == SColor(0xffc80000);
        return red;
    };
    EXPECT_GT(redPixels(), 500);
    int x = 0, y = 0;
    for (y = height - 1; y > 0 && gl.pixel(160, y) == black; --y) {
    }
    x = 160;
    --y;
    EXPECT_FALSE(mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, x, y));
    EXPECT_FALSE(mouse(irr::EMIE_LMOUSE_LEFT_UP, x, y));
    frame();
    EXPECT_EQ(redPixels(), 0);
    panels->setMessage(&owner, "GPS: no signal", MESSAGE_RED, -1);
    frame();
    panels->removeMessage(&owner);
    clock.advance(1.1);
    frame();
    EXPECT_EQ(redPixels(), 0);
}

TEST_F(PanelManagerTest, disabledMessagesNeitherDrawNorTakeTheMouse) {
    addPanel("0", 0, 0, 1, 1);
    ini.set("", "messagesDisabled", "1");
    ini.set("", "optimized", "0");
    load();
    int owner = 0;
    panels->setMessage(&owner, "GPS: no signal", MESSAGE_RED, -1);
    frame();
    for (int y = 0; y < panelsBottom(); y += 5) {
        EXPECT_EQ(gl.pixel(160, y), colors['0' % 3]);
        EXPECT_TRUE(mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, 160, y));
    }
}

TEST_F(PanelManagerTest, textsLieOverEarlierSprites) {
    gl.begin();
    context->getDrawer()->drawFilledRect(rect<int>(0, 0, width, height), colors[2]);
    panels->getFlexibleFont()->draw(L"0000", rect<int>(0, 0, width, height), SColor(0xffff0000), true, true);
    context->getDrawer()->flush();
    gl.end();
    int red = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            red += gl.pixel(x, y).getRed() > 128;
    EXPECT_GT(red, 20);
}

TEST_F(PanelManagerTest, readsTheSharedSettings) {
    addPanel("0", 0, 0, 1, 1);
    ini.set("", "units", "m|km|km/h");
    ini.set("", "blacklist", "AMA, FIR ,E");
    ini.set("", "terrainDetailLevel", "HIGH");
    ini.set("", "optimized", "3");
    load();
    EXPECT_TRUE(panels->isMetric());
    EXPECT_EQ(panels->getTerrainDetailLevel(), 2);
    ASSERT_EQ(panels->getIrrelevantAirspaceCount(), 3u);
    EXPECT_EQ(panels->getIrrelevantAirspace(1), "FIR");
    EXPECT_EQ(panels->getIrrelevantAirspace(77), "");
    EXPECT_EQ(takeCalls(), Calls{"P0 preset 3"});
    panels->unload();
    for (const char* preset : {"", "5", "-1", "x"}) {
        ini.set("", "optimized", preset);
        ini.set("", "terrainDetailLevel", "GOOD");
        ini.set("", "units", "ft|nm|knots");
        load();
        EXPECT_TRUE(takeCalls().empty()) << preset;
        EXPECT_EQ(panels->getTerrainDetailLevel(), 0);
        EXPECT_FALSE(panels->isMetric());
        panels->unload();
    }
}

TEST_F(PanelManagerTest, previewsAreThePageAtAnotherSize) {
    addPanel("1", 0.5, 0, 1, 0.5);
    load();
    panels->renderPagePreview(rect<int>(100, 100, 260, 200), -1);
    ASSERT_EQ(factory->previews.size(), 1u);
    // The menu's bar keeps its share of the picture.
    const rect<int> onScreen = panelRect({0.5, 0, 1, 0.5}, MenuBar::panelArea(context->getScreenMetrics()));
    EXPECT_EQ(factory->previews[0], rect<int>(180, 100, 260, 100 + (onScreen.LowerRightCorner.Y + 1) / 2));
    panels->renderPagePreview(rect<int>(100, 100, 260, 200), 0);
    EXPECT_EQ(factory->previews.size(), 1u);
}

TEST_F(PanelManagerTest, aMissingFontFallsBackIntoTheDocument) {
    ini.set("", "font", "No Such Font");
    panels->loadFontSettingsFromIni(&ini);
    EXPECT_EQ(ini.get("", "font"), "Ubuntu (Regular)");
    EXPECT_NE(panels->getFlexibleFont(), nullptr);
}

} // namespace
