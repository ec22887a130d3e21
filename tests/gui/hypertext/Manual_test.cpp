#include "../windows/DialogFixture.h"
#include "core/events/EventReceiver.h"
#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "gui/hypertext/CHyperTextElement.h"
#include "gui/hypertext/ManualWindow.h"
#include "gui/hypertext/markup/ParseHypertext.h"
#include "gui/skin/Skin.h"
#include "gui/windows/Help.h"
#include "support/AllocationCounter.h"
#include "support/SourceFolder.h"

#include <fstream>
#include <regex>
#include <set>
#include <sstream>

namespace skyvane {
namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

std::vector<std::string> namesIn(const std::string& text, const char* pattern) {
    std::vector<std::string> names;
    const std::regex expression(pattern);
    for (auto i = std::sregex_iterator(text.begin(), text.end(), expression); i != std::sregex_iterator(); ++i)
        names.push_back((*i)[1]);
    return names;
}

fs::path manualFolder() {
    return sourceFolder() + "media/doc";
}

std::set<std::string> manualPages() {
    std::set<std::string> pages;
    for (const auto& entry : fs::directory_iterator(manualFolder()))
        if (entry.path().extension() == ".hti")
            pages.insert(entry.path().filename());
    return pages;
}

TEST(ManualPages, EachLinkAndPictureIsThereAndEachPageCanBeReached) {
    std::set<std::string> reached{ManualWindow::startPage}, open = reached;
    while (!open.empty()) {
        const std::string page = *open.begin();
        open.erase(open.begin());
        const std::string text = contentOf(manualFolder() / page);
        for (const std::string& target : namesIn(text, R"re(\\L"([^"]*)")re")) {
            EXPECT_TRUE(fs::exists(manualFolder() / target)) << page << " links to " << target;
            if (reached.insert(target).second)
                open.insert(target);
        }
        for (const std::string& picture : namesIn(text, R"re(\\F"([^"]*)")re"))
            EXPECT_TRUE(fs::exists(manualFolder() / picture)) << page << " shows " << picture;
    }
    EXPECT_EQ(manualPages(), reached);
}

/// What stands behind a page's end isn't shown: one end too many, and the rest of the page is lost.
TEST(ManualPages, EachIsReadToItsEnd) {
    for (const std::string& page : manualPages()) {
        const std::string text = contentOf(manualFolder() / page);
        const std::unique_ptr<IDocElement> read = parseHypertext(text);
        ASSERT_TRUE(read) << page;
        EXPECT_EQ(namesIn(read->toHTML(), R"re(<a href="([^"]*)")re").size(),
                  namesIn(text, R"re(\\L"([^"]*)")re").size())
            << page;
    }
}

TEST(ManualPages, ThereIsOneForEachHelpButton) {
    std::set<std::string> asked;
    for (const auto& entry : fs::recursive_directory_iterator(sourceFolder() + "source"))
        if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
            for (const std::string& page : namesIn(contentOf(entry.path()), R"re("([A-Za-z0-9]+\.hti)")re"))
                asked.insert(page);
    EXPECT_GE(asked.size(), 6u);
    for (const std::string& page : asked)
        EXPECT_TRUE(fs::exists(manualFolder() / page)) << page;
}

class Manual : public DialogFixture {
protected:
    void SetUp() override {
        setClock(&clock);
        DialogFixture::SetUp();
        if (context)
            panels = context->getPanelManager();
    }
    void TearDown() override {
        DialogFixture::TearDown();
        setClock(nullptr);
    }
    CHyperTextElement* element() {
        const irr::gui::IGUIElement* back = findText(root, L"Back");
        for (irr::gui::IGUIElement* child : back->getParent()->getChildren())
            if (auto* found = dynamic_cast<CHyperTextElement*>(child))
                return found;
        return nullptr;
    }
    std::string shown() { return element()->getDocument().getFile(); }
    /// Each as long as a frame takes: a finger's speed is measured in them.
    void frame(int count = 1) {
        for (int i = 0; i < count; ++i) {
            clock.advance(0.036);
            ASSERT_TRUE(frames->runFrame(nullptr));
        }
    }
    /// The engine's buttons copy their labels.
    size_t allocationsOfButtons() {
        const auto& buttons = element()->getChildren();
        const AllocationCounter counter;
        for (irr::gui::IGUIElement* button : buttons)
            button->draw();
        return counter.count();
    }
    /// The lowest button of a page lies there, once the page stands at its end.
    irr::core::position2di lowestLink() {
        const irr::core::recti page = element()->getAbsolutePosition();
        return {page.getCenter().X, page.LowerRightCorner.Y - static_cast<int>(GetParam().Height) / 25};
    }

    ManualClock clock;
    PanelManager* panels = nullptr;
};

TEST_P(Manual, HelpOpensAPageThatIsReadAndLeft) {
    irr::gui::IGUIElement* const before = context->getEvents()->getBackButton();
    unsigned long layouts = 0;
    script
        ->then([&] {
            EXPECT_TRUE(panels->isManualVisible());
            EXPECT_EQ("Dials.hti", shown());
            expectTouchable(findText(root, L"Back"));
            for (const wchar_t* label : {L"<", L">", L"+", L"-", L"1"})
                expectTouchable(findText(root, label));
            EXPECT_FALSE(findText(root, L"<")->isEnabled());
            layouts = element()->getDocument().getLayouts();
            EXPECT_EQ(1u, layouts);
            key(irr::KEY_END);
        })
        .then([&] {
            EXPECT_LT(element()->getDocument().getScrollOffset(), 0);
            EXPECT_EQ(layouts, element()->getDocument().getLayouts());
            clickAt(lowestLink());
        })
        .then([] {})
        .then([&] {
            EXPECT_EQ("index.hti", shown());
            EXPECT_EQ(0, element()->getDocument().getScrollOffset());
            click(L"<");
        })
        .then([&] {
            EXPECT_EQ("Dials.hti", shown());
            click(L">");
        })
        .then([&] {
            EXPECT_EQ("index.hti", shown());
            layouts = element()->getDocument().getLayouts();
            click(L"+");
        })
        .then([&] {
            EXPECT_EQ(layouts + 1, element()->getDocument().getLayouts());
            click(L"1");
        })
        .then([&] { click(L"Back"); });
    showHelp(context.get(), "Dials.hti");
    EXPECT_TRUE(script->isDone());
    EXPECT_FALSE(panels->isManualVisible());
    EXPECT_EQ(before, context->getEvents()->getBackButton());
    EXPECT_FALSE(isHelpAvailable(context.get(), "../config.ini"));
    EXPECT_FALSE(isHelpAvailable(context.get(), "Nothing.hti"));
}

TEST_P(Manual, EveryPageIsLaidOutAndStandsStill) {
    panels->setManualVisible();
    for (const std::string& page : manualPages()) {
        element()->gotoFile(page, nullptr);
        frame(3);
        picture("manual-" + page);
        EXPECT_TRUE(element()->getDocument().hasPage()) << page;
        EXPECT_EQ(page, shown());
        key(irr::KEY_END);
        frame(2);
        picture("manual-" + page + "-end");
        const unsigned long layouts = element()->getDocument().getLayouts();
        CHyperTextElement* drawn = element();
        const size_t ofButtons = allocationsOfButtons();
        const AllocationCounter counter;
        drawn->draw();
        EXPECT_EQ(ofButtons, counter.count()) << page;
        EXPECT_EQ(layouts, element()->getDocument().getLayouts()) << page;
        if (page == ManualWindow::startPage || element()->getDocument().getScrollOffset() == 0)
            continue;                                                   // a short page ends further up
        for (int column = 2; column < 4 && shown() == page; ++column) { // alone in its row, or the last of it
            clickAt({static_cast<int>(GetParam().Width) * column / 4, lowestLink().Y});
            frame(3);
        }
        EXPECT_EQ(ManualWindow::startPage, shown()) << page;
    }
}

TEST_P(Manual, ADragScrollsAndOpensNothing) {
    panels->setManualVisible("Dials.hti");
    frame(2);
    key(irr::KEY_END);
    frame(2);
    const int end = element()->getDocument().getScrollOffset();
    const irr::core::position2di link = lowestLink();
    const int way = static_cast<int>(GetParam().Height) / 4;
    post(irr::EMIE_LMOUSE_PRESSED_DOWN, link);
    frame(2);
    post(irr::EMIE_MOUSE_MOVED, link + irr::core::position2di(0, way));
    frame(2);
    EXPECT_EQ(std::min(0, end + way), element()->getDocument().getScrollOffset());
    post(irr::EMIE_MOUSE_MOVED, link);
    post(irr::EMIE_LMOUSE_LEFT_UP, link);
    frame(3);
    EXPECT_EQ("Dials.hti", shown());
    // Less than a twentieth of the view is a click still.
    post(irr::EMIE_LMOUSE_PRESSED_DOWN, link);
    frame(2);
    post(irr::EMIE_MOUSE_MOVED, link + irr::core::position2di(2, 3));
    post(irr::EMIE_LMOUSE_LEFT_UP, link + irr::core::position2di(2, 3));
    frame(3);
    EXPECT_EQ("index.hti", shown());
}

INSTANTIATE_TEST_SUITE_P(Screens, Manual, allScreens());

class HostileDocument : public DialogFixture {};

TEST_P(HostileDocument, ShowsWhatItCan) {
    const std::string folder = home + "/pages/";
    fs::create_directory(folder);
    std::ofstream(folder + "circle.hti")
        << "\\R\\Lcircle.hti\\\\Tround\\n\\n\\L../config.ini\\\\Tout\\n\\n"
           "\\Fmissing.png\\0\\0\\n\\F../media/cross.png\\0\\0\\n\\Fbomb.png\\0\\0\\n\\n";
    std::ofstream(folder + "broken.hti") << "\\R\\Tnever closes";
    std::ofstream(folder + "bomb.png") << std::string("\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\xff\xff\0\0\xff\xff", 24);
    Document document(gl.device(), "circle.hti", folder.c_str());
    document.setFont(context->getFlexibleFont());
    const auto draw = [&] {
        gl.begin();
        document.render(Style(), irr::core::rect<int>(0, 0, 400, 300));
        gl.end();
    };
    draw();
    EXPECT_TRUE(document.hasPage());
    EXPECT_NE(std::string::npos, document.Print().find("Figure bomb.png [0,0 0,0]"));
    EXPECT_NE(std::string::npos, document.Print().find("Figure ../media/cross.png [0,0 0,0]"));
    for (const char* target : {"circle.hti", "../config.ini", "/etc/passwd", "none.hti"}) {
        document.gotoOnNextRender(target);
        draw();
        EXPECT_EQ("circle.hti", document.getFile()) << target;
        EXPECT_FALSE(document.hasBackward());
    }
    document.gotoOnNextRender("broken.hti");
    draw();
    EXPECT_EQ("broken.hti", document.getFile());
    EXPECT_FALSE(document.hasPage());
    document.Backwards();
    draw();
    EXPECT_TRUE(document.hasPage());
}

INSTANTIATE_TEST_SUITE_P(Screens, HostileDocument, testing::Values(irr::core::dimension2du(400, 300)));

} // namespace
} // namespace skyvane
