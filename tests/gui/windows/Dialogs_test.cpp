#include "core/events/EventReceiver.h"
#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "gui/windows/CMBox.h"
#include "gui/windows/ChooseFromListDialog.h"
#include "gui/windows/DialogFixture.h"
#include "gui/windows/EditBoxDialog.h"
#include "gui/windows/GUI.h"
#include "gui/windows/IniEditor.h"
#include "gui/windows/InputDialog.h"
#include "gui/windows/ListRows.h"
#include "gui/windows/NumberEditBox.h"
#include "gui/windows/ProgressDialog.h"
#include "gui/windows/Questions.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>

namespace skyvane {
namespace {

using DialogsTest = DialogFixture;

constexpr irr::u32 backKey = 0xA6;

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
            environment->setFocus(nullptr); // keys stood before "Ok"
        }
        if (frame == 7)
            click(findText(root, L"Ok"));
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

TEST_P(DialogsTest, ALongEditorScrollsToTheWrongFieldAndMarksIt) {
    std::wstring longSchema;
    for (int i = 0; i < 40; ++i)
        longSchema += L"k" + std::to_wstring(i) + L",Setting " + std::to_wstring(i) + L":,1.5,DOUBLE;";
    longSchema += L"place,Place:,Airfield of the Sea of Clouds,CHARTELEMENT;shade,Shade:,10\\,20\\,30\\,90,COLOR_RGBA;";
    IniEditor editor(context.get(), "Many settings", longSchema, "Many.hti");
    IniFile document;
    document.set("", "k30", "far");
    document.set("", "place", "Home");
    const auto isInView = [&](irr::gui::IGUIElement* element) {
        return element && element->getAbsoluteClippingRect().getHeight() > context->getRecommendedButtonHeight() / 2;
    };
    script->then([&] {
        EXPECT_FALSE(isInView(findText(root, L"far")));
        EXPECT_FALSE(findText(root, L"Help")->isEnabled());
        expectTouchable(findText(root, L"Help"));
        expectTouchable(findText(root, L"Ok"));
        EXPECT_FALSE(findText(root, L"Home")->isEnabled());
        click(L"Ok");
    });
    script->then([&] {
        picture("editor-long");
        EXPECT_TRUE(isInView(findText(root, L"far")));
        EXPECT_TRUE(isShown(L"Setting 30:  A number, please."));
        key(irr::KEY_KEY_5, L'5'); // replaces the number, which is selected
    });
    script->then([&] {
        EXPECT_TRUE(isShown(L"Setting 30:")) << "the mark goes with the mistake";
        environment->getFocus()->setText(L"-.5");
        environment->setFocus(nullptr); // keys stood before "Ok"
    });
    script->then([&] { click(L"Ok"); });
    EXPECT_TRUE(editor.run(&document));
    EXPECT_EQ("-.5", document.get("", "k30"));
    EXPECT_EQ("1.5", document.get("", "k39"));
    EXPECT_EQ("Home", document.get("", "place"));
    EXPECT_EQ("10,20,30,90", document.get("", "shade"));
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
    context->setFrames(frames.get()); // a slow machine runs many
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
    const irr::core::dimension2di size(context->getRecommendedButtonWidth() * 3, context->getRecommendedButtonHeight());
    auto box = EngineRef<NumberEditBox>::adopt(
        new NumberEditBox(environment, nullptr, 5, irr::core::recti({100, 100}, size), 7, {10, 0, 1, 5, 1}));
    for (const wchar_t* caption : {L"--", L"-", L"+", L"++"})
        expectTouchable(findText(box.get(), caption));
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
    for (irr::gui::IGUIButton* button : buttons)
        expectTouchable(button);
    EXPECT_EQ(5, buttons[1]->getID());
    EXPECT_EQ(-1, buttons[2]->getID());
    list->remove();
    list =
        createChooseFromListDialog(gl.device(), buttons, {}, std::vector<std::wstring>(500, L"One of many"), L"Many");
    loop.step();
    picture("choose-many");
    expectTouchable(buttons[0]);
    EXPECT_LE(list->getAbsolutePosition().LowerRightCorner.Y, root->getAbsolutePosition().LowerRightCorner.Y);
}

TEST_P(DialogsTest, QuestionsWaitForTheirAnswers) {
    script->then([&] {
        picture("question");
        expectTouchable(findText(root, L"Replace"));
        click(L"Replace");
    });
    EXPECT_TRUE(askInBox(*context, L"The plan is there already.", L"Replace", L"Cancel"));
    script->then([&] { key(backKey); });
    EXPECT_FALSE(askInBox(*context, L"The plan is there already.", L"Replace", L"Cancel"));
    EXPECT_FALSE(isShown(L"Replace"));

    script->then([&] {
        picture("text");
        findText(root, L"Plan 1")->setText(L"");
        click(L"Ok");
    });
    script->then([&] {
        ASSERT_TRUE(isShown(L"Ok"));
        environment->getFocus()->setText(L"Zell");
        key(irr::KEY_RETURN, L'\r');
    });
    EXPECT_EQ(L"Zell", askForText(*context, L"Rename", L"The new name:", L"Plan 1").value_or(L""));
    script->then([&] { environment->setFocus(nullptr); }).then([&] { key(backKey); });
    EXPECT_FALSE(askForText(*context, L"Rename", L"The new name:", L"Plan 1"));
    EXPECT_FALSE(isShown(L"Plan 1"));
    // The window is closed in place of an answer.
    EXPECT_FALSE(askForText(*context, L"Rename", L"The new name:", L"Plan 1"));
    EXPECT_FALSE(isShown(L"Plan 1"));
}

/// Boxes upon boxes upon a modal window: Enter is for the uppermost, also after a finger beside its buttons, and the
/// edit box below has the focus again afterwards.
TEST_P(DialogsTest, TheFocusGoesBackToWhatLiesBeneath) {
    IniFile document;
    const auto tell = [&](const wchar_t* text) { (new CMBox(environment, nullptr, text, L"Ok", L"Cancel"))->drop(); };
    irr::gui::IGUIElement* edited = nullptr;
    script
        ->then([&] {
            edited = findText(root, L"4000");
            click(edited);
        })
        .then([&] {
            EXPECT_EQ(edited, environment->getFocus());
            tell(L"First");
            tell(L"Second");
        })
        .then([&] {
            clickAt({3, 3}); // on the dimmed glass
            key(irr::KEY_RETURN, L'\r');
        })
        .then([&] {
            EXPECT_FALSE(isShown(L"Second"));
            ASSERT_TRUE(isShown(L"First"));
            key(irr::KEY_RETURN, L'\r');
        })
        .then([&] {
            EXPECT_FALSE(isShown(L"First"));
            EXPECT_EQ(edited, environment->getFocus());
            key(irr::KEY_END);
            key(irr::KEY_KEY_7, L'7');
        })
        .then([&] { environment->setFocus(nullptr); }) // the keys on the screen go
        .then([&] { click(L"Ok"); });
    EXPECT_TRUE(IniEditor(context.get(), "Receiver", L"port,Port:,4000,INT;", nullptr).run(&document));
    EXPECT_EQ("40007", document.get("", "port"));
    EXPECT_TRUE(script->isDone());
}

TEST_P(DialogsTest, AStormOfClicksAnswersOnlyOnce) {
    struct Answers : IEditBoxDialogCallback {
        void OnResult(EditBoxDialog*, const wchar_t*, bool) override { ++count; }
        int count = 0;
    } answers;
    EditBoxDialog::Options options;
    options.hint = L"Characters: 0-9, A-Z, a-z, - and _";
    options.isPassword = true;
    (new EditBoxDialog(&answers, gl.device(), L"Key", L"At least 8 characters:", L"secret", options))->drop();
    ModalLoop loop(*frames);
    loop.step();
    picture("password");
    const irr::core::position2di ok = findText(root, L"Ok")->getAbsolutePosition().getCenter();
    for (int i = 0; i < 200; ++i) {
        clickAt(ok);
        key(i % 2 ? irr::KEY_RETURN : irr::KEY_TAB, L'\t');
        clickAt({i * 7 % static_cast<int>(GetParam().Width), i * 11 % static_cast<int>(GetParam().Height)});
    }
    loop.step();
    EXPECT_EQ(1, answers.count);
    EXPECT_FALSE(isShown(L"secret"));
}

/// Documents with missing keys, unknown words and absurd rectangles; built, drawn, and clicked all over.
TEST_P(DialogsTest, HostileLayoutsGiveWindowsThatCanBeUsed) {
    const char* const types[] = {"Button",
                                 "Text",
                                 "ListBox",
                                 "ComboBox",
                                 "CheckBox",
                                 "VerticalScrollBar",
                                 "HorizontalScrollBar",
                                 "EditBox",
                                 "SpecialRectangle",
                                 "Nonsense",
                                 ""};
    const char* const rects[] = {
        "0,0,1,1", "0.4,0.4,0.4,0.4", "9,9,-9,-9", "nan,inf,-inf,1e308", "0.1,0.1,0.1001,2", "",
        ",,,",     "0.2,0.2,0.6,0.3"};
    const char* const others[] = {
        "Hides", "Switches", "VisibilityDomain", "Default", "EditType", "ExclusiveCounterParts", "HAlign", "Text"};
    const char* const values[] = {"0", "-1", "2147483648", "a,b,c,a", "\xff\xfe", "Center", "MULTILINE_STRING_EDIT",
                                  "1"};
    std::mt19937 random(7);
    ModalLoop loop(*frames);
    for (int round = 0; round < 12; ++round) {
        IniFile document;
        document.set("", "EleCount", round % 4 == 3 ? "99999999" : "24");
        document.set("", "Ratio", round % 3 == 0 ? "1.77778" : round % 3 == 1 ? "-0" : "1e9");
        for (int i = 0; i < 24; ++i) {
            const std::string section = "E" + std::to_string(i);
            document.set(section, "Type", types[random() % std::size(types)]);
            document.set(section, "Rect", rects[random() % std::size(rects)]);
            document.set(section, "Id", std::string(1, static_cast<char>('a' + random() % 6)));
            for (int k = 0; k < 3; ++k)
                document.set(section, others[random() % std::size(others)], values[random() % std::size(values)]);
        }
        irr::gui::IGUIWindow* window =
            addWindowForRatio(environment, &document, root->getAbsolutePosition(), true, nullptr, -1);
        GUI gui(environment, &document, windowArea(window), window, round % 2 == 0);
        for (int i = 0; i < 30; ++i) {
            clickAt({static_cast<int>(random() % GetParam().Width), static_cast<int>(random() % GetParam().Height)});
            key(i % 2 ? irr::KEY_TAB : irr::KEY_DOWN, L'x');
        }
        loop.step();
        gui.setDefaults();
        gui.setVisible(round % 2 == 0);
        loop.step();
        window->getParent()->remove();
    }
    EXPECT_EQ(0u, root->getChildren().size());
}

const wchar_t* textOf(const irr::gui::IGUIListBox* list, irr::u32 row) {
    return list->getListItem(row);
}
const wchar_t* textOf(const irr::gui::IGUIComboBox* box, irr::u32 row) {
    return box->getItem(row);
}

TEST_P(DialogsTest, RowsThatAreTooLongEndInDots) {
    irr::gui::IGUISkin& skin = *environment->getSkin();
    irr::gui::IGUIListBox* list = environment->addListBox({20, 20, 320, 220});
    irr::gui::IGUIComboBox* box = environment->addComboBox({20, 240, 320, 300});
    std::vector<std::wstring> rows = {L"Short", std::wstring(60, L'W'), L""};
    const auto expectRows = [&](auto* element, int room) {
        ASSERT_EQ(element->getItemCount(), rows.size());
        EXPECT_STREQ(textOf(element, 0), L"Short");
        const std::wstring shown = textOf(element, 1);
        EXPECT_EQ(shown.substr(shown.size() - 4), L"W...");
        EXPECT_LE(static_cast<int>(skin.getFont()->getDimension(shown.c_str()).Width), room);
        EXPECT_GT(static_cast<int>(skin.getFont()->getDimension((shown + L"WW").c_str()).Width), room - 20);
    };
    fillList(list, skin, rows);
    fillChoice(box, skin, rows);
    expectRows(list, 300);
    expectRows(box, 300 - skin.getSize(irr::gui::EGDS_SCROLLBAR_SIZE));
    picture("rows");
    rows.resize(20); // the bar takes its room
    fillList(list, skin, rows);
    expectRows(list, 300 - skin.getSize(irr::gui::EGDS_SCROLLBAR_SIZE));
    EXPECT_EQ(list->getSelected(), -1);
}

INSTANTIATE_TEST_SUITE_P(Screens, DialogsTest, allScreens());

} // namespace skyvane
