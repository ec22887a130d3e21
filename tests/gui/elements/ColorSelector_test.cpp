#include "gui/elements/ColorSelector.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "support/GlDevice.h"
#include "support/SourceFolder.h"
#include "support/StartAnswers.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <stdlib.h>

namespace skyvane {
namespace {

using irr::video::SColor;

/// Stands for the user: moves the first slider in the first frame, then presses the button with this text; without one
/// the program's window is closed.
class ScriptedFrames : public IFrameRunner {
public:
    ScriptedFrames(Context& context, const wchar_t* button) : context_(context), button_(button) {}

    bool runFrame(const ModalFrame* modal) override {
        if (!button_)
            return false;
        irr::SEvent event{};
        event.EventType = irr::EET_GUI_EVENT;
        const bool isFirst = frames_++ == 0;
        event.GUIEvent.EventType = isFirst ? irr::gui::EGET_SCROLL_BAR_CHANGED : irr::gui::EGET_BUTTON_CLICKED;
        visit(context_.getIrrlichtDevice()->getGUIEnvironment()->getRootGUIElement(), event, isFirst);
        if (event.GUIEvent.Caller)
            modal->onEvent(event);
        return frames_ < 10;
    }
    EventReceiver* getEvents() override { return context_.getEvents(); }
    int sliders = 0;

private:
    void visit(irr::gui::IGUIElement* element, irr::SEvent& event, bool isFirst) {
        const bool isSlider = element->getType() == irr::gui::EGUIET_SCROLL_BAR;
        if (isFirst && isSlider && sliders++ == 0) {
            static_cast<irr::gui::IGUIScrollBar*>(element)->setPos(77);
            event.GUIEvent.Caller = element;
        }
        if (!isFirst && irr::core::stringw(button_) == element->getText())
            event.GUIEvent.Caller = element;
        for (irr::gui::IGUIElement* child : element->getChildren())
            visit(child, event, isFirst);
    }
    Context& context_;
    const wchar_t* button_;
    int frames_ = 0;
};

class ColorSelectorTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        char folder[] = "/tmp/skyvane_color_XXXXXX";
        ASSERT_TRUE(mkdtemp(folder));
        home = folder;
        answerStartQuestions(folder);
        std::filesystem::create_directory_symlink(sourceFolder() + "media", home + "/media");
        context = std::make_unique<Context>(gl.device(), (home + "/skyvane").c_str(), false);
    }
    void TearDown() override {
        context.reset();
        std::error_code ignored;
        if (!home.empty())
            std::filesystem::remove_all(home, ignored);
    }
    /// The number of sliders that were shown.
    int answer(ColorSelector& selector, const wchar_t* button, bool withAlpha) {
        ScriptedFrames frames(*context, button);
        context->setFrames(&frames);
        selector.select(withAlpha);
        context->setFrames(nullptr);
        EXPECT_FALSE(selector.isVisible());
        EXPECT_EQ(nullptr, context->getEvents()->getBackButton());
        return frames.sliders;
    }

    GlDevice gl{640, 480};
    std::string home;
    std::unique_ptr<Context> context;
};

} // namespace

TEST_F(ColorSelectorTest, OkTakesTheColourAndCancelKeepsIt) {
    const SColor first(100, 1, 2, 3);
    ColorSelector selector(context.get(), first);
    EXPECT_EQ(4, answer(selector, L"Cancel", true));
    EXPECT_FALSE(selector.lastSuccess());
    EXPECT_EQ(first, selector.getColor());
    EXPECT_EQ(3, answer(selector, L"Ok", false));
    EXPECT_TRUE(selector.lastSuccess());
    EXPECT_EQ(SColor(100, 77, 2, 3), selector.getColor());
    answer(selector, nullptr, true);
    EXPECT_FALSE(selector.lastSuccess()) << "the program's window was closed";
    EXPECT_EQ(SColor(100, 77, 2, 3), selector.getColor());
}

} // namespace skyvane
