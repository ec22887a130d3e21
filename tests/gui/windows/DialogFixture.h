#pragma once

#include "core/Context.h"
#include "core/FrameLoop.h"
#include "core/ModalLoop.h"
#include "support/GlDevice.h"
#include "support/StartAnswers.h"

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <gtest/gtest.h>
#include <vector>

namespace skyvane {

/// Finds an element by the text on it, the uppermost first; null when there is none that can be seen.
inline irr::gui::IGUIElement* findText(irr::gui::IGUIElement* root, const std::wstring& text) {
    if (!root->isVisible())
        return nullptr;
    const auto& children = root->getChildren();
    for (auto child = children.getLast(); child != children.end(); --child)
        if (irr::gui::IGUIElement* found = findText(*child, text))
            return found;
    return root->getText() == text ? root : nullptr;
}

/// Frames in which a test acts: every second one takes a step before it. When steps are all taken and the dialog still
/// waits, the frames end as if the window was closed.
class ScriptedFrames : public IFrameRunner {
public:
    explicit ScriptedFrames(IFrameRunner& frames) : frames_(frames) {}

    ScriptedFrames& then(std::function<void()> step) {
        steps_.push_back(std::move(step));
        return *this;
    }
    bool isDone() const { return steps_.empty(); }

    bool runFrame(const ModalFrame* modal) override {
        if (++count_ % 2 == 0 && !steps_.empty()) {
            const std::function<void()> step = std::move(steps_.front());
            steps_.pop_front();
            step();
            idle_ = 0;
        }
        return ++idle_ < 12 && frames_.runFrame(modal);
    }
    EventReceiver* getEvents() override { return frames_.getEvents(); }

private:
    IFrameRunner& frames_;
    std::deque<std::function<void()>> steps_;
    int count_ = 0;
    int idle_ = 0;
};

/// Dialogs in a program without panels, on one size of screen after the other.
class DialogFixture : public testing::TestWithParam<irr::core::dimension2du> {
protected:
    DialogFixture() : gl(GetParam().Width, GetParam().Height) {}
    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        char folder[] = "/tmp/skyvane_dialogs_XXXXXX";
        ASSERT_TRUE(mkdtemp(folder));
        home = folder;
        answerStartQuestions(folder);
        const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
        std::filesystem::create_directory_symlink(program.parent_path().parent_path() / "media", home + "/media");
        context = std::make_unique<Context>(gl.device(), (home + "/skyvane").c_str(), false);
        frames = std::make_unique<FrameLoop>(*context);
        script = std::make_unique<ScriptedFrames>(*frames);
        context->setFrames(script.get());
        environment = gl.device()->getGUIEnvironment();
        root = environment->getRootGUIElement();
    }
    void TearDown() override {
        frames.reset();
        context.reset();
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
    }

    void post(irr::EMOUSE_INPUT_EVENT kind, irr::core::position2di place) {
        irr::SEvent event{};
        event.EventType = irr::EET_MOUSE_INPUT_EVENT;
        event.MouseInput.Event = kind;
        event.MouseInput.X = place.X;
        event.MouseInput.Y = place.Y;
        event.MouseInput.ButtonStates = kind == irr::EMIE_LMOUSE_LEFT_UP ? 0 : irr::EMBSM_LEFT;
        gl.device()->postEventFromUser(event);
    }
    void clickAt(irr::core::position2di place) {
        post(irr::EMIE_LMOUSE_PRESSED_DOWN, place);
        post(irr::EMIE_LMOUSE_LEFT_UP, place);
    }
    void click(irr::gui::IGUIElement* element) {
        ASSERT_NE(nullptr, element);
        clickAt(element->getAbsolutePosition().getCenter());
    }
    void click(const std::wstring& text) {
        irr::gui::IGUIElement* element = findText(root, text);
        ASSERT_NE(nullptr, element) << irr::core::stringc(text.c_str()).c_str();
        click(element);
    }
    void key(irr::u32 code, wchar_t character = 0) {
        for (const bool down : {true, false}) {
            irr::SEvent event{};
            event.EventType = irr::EET_KEY_INPUT_EVENT;
            event.KeyInput.Key = static_cast<irr::EKEY_CODE>(code);
            event.KeyInput.Char = character;
            event.KeyInput.PressedDown = down;
            gl.device()->postEventFromUser(event);
        }
    }
    bool isShown(const std::wstring& text) const { return findText(root, text) != nullptr; }
    /// What the uppermost message box says, in one line.
    std::wstring told() const {
        irr::gui::IGUIElement* box = *root->getChildren().getLast();
        std::wstring text;
        for (irr::gui::IGUIElement* child : box->getChildren())
            if (child->getType() == irr::gui::EGUIET_STATIC_TEXT)
                text += child->getText();
        std::replace(text.begin(), text.end(), L'\n', L' ');
        return text;
    }
    /// A button of a size that a finger hits, within the screen.
    void expectTouchable(irr::gui::IGUIElement* element) const {
        ASSERT_NE(nullptr, element);
        const irr::core::recti place = element->getAbsolutePosition();
        EXPECT_GE(place.getHeight(), context->getRecommendedButtonHeight() * 9 / 10);
        EXPECT_GE(place.getWidth(), context->getRecommendedButtonHeight() * 9 / 10);
        EXPECT_TRUE(root->getAbsolutePosition().isPointInside(place.UpperLeftCorner));
        EXPECT_TRUE(root->getAbsolutePosition().isPointInside(place.LowerRightCorner));
    }
    /// Kept to be looked at, where SKYVANE_TEST_PICTURES names a folder.
    void picture(const std::string& name) {
        gl.grab();
        gl.savePicture((name + "-" + std::to_string(GetParam().Width) + ".png").c_str());
    }

    GlDevice gl;
    std::string home;
    std::unique_ptr<Context> context;
    std::unique_ptr<FrameLoop> frames;
    std::unique_ptr<ScriptedFrames> script;
    irr::gui::IGUIEnvironment* environment = nullptr;
    irr::gui::IGUIElement* root = nullptr;
};

/// The screens that every dialog is tried on: the smallest one, and an upright one. Larger ones, slow to draw, when the
/// pictures are looked at.
inline auto allScreens() {
    using Size = irr::core::dimension2du;
    std::vector<Size> screens{{800, 480}, {720, 1280}};
    if (std::getenv("SKYVANE_TEST_PICTURES"))
        screens.insert(screens.end(), {{1280, 720}, {1920, 1080}});
    return testing::ValuesIn(screens);
}

} // namespace skyvane
