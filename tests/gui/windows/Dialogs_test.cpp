#include "core/Context.h"
#include "core/FrameLoop.h"
#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "gui/windows/CMBox.h"
#include "gui/windows/ChooseFromListDialog.h"
#include "gui/windows/IniEditor.h"
#include "gui/windows/InputDialog.h"
#include "gui/windows/NumberEditBox.h"
#include "gui/windows/ProgressDialog.h"
#include "support/GlDevice.h"
#include "support/SourceFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

using irr::gui::IGUIElement;

/// Finds an element by the text on it, anywhere below.
IGUIElement* findText(IGUIElement* root, const wchar_t* text) {
    if (std::wstring(root->getText()) == text)
        return root;
    for (IGUIElement* child : root->getChildren())
        if (IGUIElement* found = findText(child, text))
            return found;
    return nullptr;
}

/// The dialogs in a program without panels, on both shapes of screen.
class DialogsTest : public testing::TestWithParam<bool> {
protected:
    DialogsTest() : gl(GetParam() ? 720 : 1280, GetParam() ? 1280 : 720) {}
    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        char folder[] = "/tmp/skyvane_dialogs_XXXXXX";
        ASSERT_TRUE(mkdtemp(folder));
        home = folder;
        setenv("SKYVANE_DATA_ROOT", folder, 1);
        std::filesystem::create_directory_symlink(sourceFolder() + "media", home + "/media");
        context = std::make_unique<Context>(gl.device(), (home + "/skyvane").c_str(), false);
        frames = std::make_unique<FrameLoop>(*context);
        root = gl.device()->getGUIEnvironment()->getRootGUIElement();
    }
    void TearDown() override {
        frames.reset();
        context.reset();
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
    }
    void postMouse(irr::EMOUSE_INPUT_EVENT kind, irr::core::position2di place) {
        irr::SEvent event{};
        event.EventType = irr::EET_MOUSE_INPUT_EVENT;
        event.MouseInput.Event = kind;
        event.MouseInput.X = place.X;
        event.MouseInput.Y = place.Y;
        gl.device()->postEventFromUser(event);
    }
    void click(IGUIElement* element) {
        const irr::core::position2di place = element->getAbsolutePosition().getCenter();
        postMouse(irr::EMIE_MOUSE_MOVED, place);
        postMouse(irr::EMIE_LMOUSE_PRESSED_DOWN, place);
        postMouse(irr::EMIE_LMOUSE_LEFT_UP, place);
    }
    void picture(const char* name) {
        gl.grab();
        gl.savePicture((std::string(name) + (GetParam() ? "-portrait.png" : "-landscape.png")).c_str());
    }

    GlDevice gl;
    std::string home;
    std::unique_ptr<Context> context;
    std::unique_ptr<FrameLoop> frames;
    IGUIElement* root = nullptr;
};

constexpr const wchar_t* schema = L"port,Port:,4000,INT;flavor,Flavor:,Generic\\;Talos\\;Levil,ONE_OF;"
                                  L"name,Name:,Skyvane,STRING;scale,Scale:,1.5,DOUBLE;on,Active:,1,BOOLEAN;"
                                  L"fixed,Serial number:,17,NOT_EDITABLE;tint,Colour:,10\\,20\\,300,COLOR_RGB;";

} // namespace

TEST_P(DialogsTest, TheEditorWritesWhatWasEnteredAndKeepsWrongNumbersOut) {
    IniEditor editor(context.get(), "Receiver", schema, nullptr);
    IniFile document;
    document.set("", "flavor", "Talos");
    document.set("", "on", "0");
    document.set("", "other", "kept");
    int frame = 0;
    editor.edit(&document);
    ModalLoop loop(*frames, {[&](const irr::SEvent& event) { editor.processEvent(event); }});
    EXPECT_TRUE(loop.run([&] {
        if (++frame == 3) {
            picture("editor");
            findText(root, L"4000")->setText(L"40x");
            click(findText(root, L"Ok"));
        }
        if (frame == 5) {
            EXPECT_TRUE(editor.isVisible());
            EXPECT_EQ(std::wstring(L"40x"), gl.device()->getGUIEnvironment()->getFocus()->getText());
            EXPECT_FALSE(document.isAvailable("", "port"));
            findText(root, L"40x")->setText(L"-7");
            click(findText(root, L"Ok"));
        }
        return editor.isVisible() && frame < 20;
    }));
    EXPECT_TRUE(editor.success);
    EXPECT_EQ("-7", document.get("", "port"));
    EXPECT_EQ("Talos", document.get("", "flavor"));
    EXPECT_EQ("Skyvane", document.get("", "name"));
    EXPECT_EQ("0", document.get("", "on"));
    EXPECT_EQ("kept", document.get("", "other"));
    EXPECT_FALSE(document.isAvailable("", "fixed"));
    EXPECT_EQ("10,20,255", document.get("", "tint"));
}

TEST_P(DialogsTest, CancelLeavesTheDocumentAlone) {
    IniEditor editor(context.get(), "Receiver", schema, nullptr);
    IniFile document;
    editor.edit(&document);
    ModalLoop loop(*frames, {[&](const irr::SEvent& event) { editor.processEvent(event); }});
    int frame = 0;
    loop.run([&] {
        if (++frame == 2)
            click(findText(root, L"Cancel"));
        return editor.isVisible() && frame < 20;
    });
    EXPECT_FALSE(editor.isVisible());
    EXPECT_FALSE(editor.success);
    EXPECT_EQ("", document.toString());
}

TEST_P(DialogsTest, AMessageBoxTellsItsParentAndGoes) {
    (new CMBox(gl.device()->getGUIEnvironment(), nullptr,
               L"The page and everything on it will be deleted, and can't be brought back afterwards. Go on?",
               L"Delete", L"Cancel"))
        ->drop();
    int answers = 0;
    ModalLoop loop(*frames, {[&](const irr::SEvent& event) {
        answers += event.EventType == irr::EET_GUI_EVENT && event.GUIEvent.EventType == irr::gui::EGET_MESSAGEBOX_YES;
    }});
    loop.step();
    picture("message-box");
    click(findText(root, L"Delete"));
    loop.step();
    EXPECT_EQ(1, answers);
    EXPECT_EQ(nullptr, findText(root, L"Delete"));
}

TEST_P(DialogsTest, OnlyABoxWithoutButtonsClosesByTheBackKey) {
    irr::SEvent back{};
    back.EventType = irr::EET_KEY_INPUT_EVENT;
    back.KeyInput.Key = static_cast<irr::EKEY_CODE>(0xA6);
    irr::gui::IGUIEnvironment* environment = gl.device()->getGUIEnvironment();
    auto mute = EngineRef<CMBox>::adopt(new CMBox(environment, nullptr, L"Wait", L"", L""));
    auto asking = EngineRef<CMBox>::adopt(new CMBox(environment, nullptr, L"Well?", L"Ok", L""));
    asking->OnEvent(back);
    EXPECT_TRUE(asking->isVisible());
    back.KeyInput.PressedDown = true;
    mute->OnEvent(back);
    EXPECT_TRUE(mute->isVisible());
    back.KeyInput.PressedDown = false;
    mute->OnEvent(back);
    EXPECT_FALSE(mute->isVisible());
    EXPECT_EQ(nullptr, mute->getParent());
}

TEST_P(DialogsTest, ProgressGoesOnUntilThePilotGivesItUp) {
    ProgressDialog dialog(context.get(), L"Preparing the chart");
    dialog.setProgress(0.6);
    dialog.setState(L"Airspaces: 1200 of 2000");
    for (int i = 0; i < 40; ++i, Delay(5))
        ASSERT_TRUE(dialog.update());
    picture("progress");
    click(findText(root, L"Cancel"));
    bool goesOn = true;
    for (int i = 0; i < 40 && goesOn; ++i, Delay(5))
        goesOn = dialog.update();
    EXPECT_FALSE(goesOn);
    EXPECT_TRUE(dialog.isCancelled());
}

TEST_P(DialogsTest, ANumberKeepsItsBoundsAndTellsItsChanges) {
    irr::gui::IGUIEnvironment* environment = gl.device()->getGUIEnvironment();
    auto box = EngineRef<NumberEditBox>::adopt(
        new NumberEditBox(environment, nullptr, 5, {100, 100, 500, 150}, 7, {10, 0, 1, 5, 1}));
    int told = 0;
    ModalLoop loop(*frames, {[&](const irr::SEvent& event) {
        told += event.EventType == irr::EET_GUI_EVENT && event.GUIEvent.Caller == box.get() &&
                event.GUIEvent.EventType == NumberEditBox::NumberChanged;
    }});
    const auto press = [&](const wchar_t* caption) {
        click(findText(box.get(), caption));
        loop.step();
    };
    press(L"+");
    EXPECT_EQ(8.0, box->getValue());
    press(L"++");
    EXPECT_EQ(10.0, box->getValue());
    press(L"++");
    EXPECT_EQ(2, told);
    press(L"--");
    press(L"--");
    press(L"-");
    EXPECT_EQ(0.0, box->getValue());
    EXPECT_NE(nullptr, findText(box.get(), L"0.0"));
    picture("number");
}

TEST_P(DialogsTest, TheInputAndTheListStandOnTheScreen) {
    const InputDialog dialog =
        addInputDialog(gl.device()->getGUIEnvironment(), L"Rename", L"The new name of the page:", L"Page 1");
    ModalLoop loop(*frames);
    loop.step();
    picture("input");
    dialog.window->remove();
    std::vector<irr::gui::IGUIButton*> buttons;
    irr::gui::IGUIWindow* list =
        createChooseFromListDialog(gl.device(), buttons, {4, 5}, {L"One", L"A longer label", L"Three"}, L"Choose");
    loop.step();
    picture("choose");
    ASSERT_EQ(3u, buttons.size());
    EXPECT_EQ(5, buttons[1]->getID());
    EXPECT_EQ(-1, buttons[2]->getID());
    list->remove();
    list = createChooseFromListDialog(gl.device(), buttons, {}, std::vector<std::wstring>(500, L"x"), L"Many");
    EXPECT_LE(list->getAbsolutePosition().LowerRightCorner.Y, root->getAbsolutePosition().LowerRightCorner.Y);
}

INSTANTIATE_TEST_SUITE_P(BothShapes, DialogsTest, testing::Bool());

} // namespace skyvane
