#include "gui/windows/LoadSaveSettingsDialog.h"

#include "core/files/Paths.h"
#include "core/ini/IniFile.h"
#include "gui/windows/DialogFixture.h"

#include <map>

namespace skyvane {
namespace {

/// A flight plan that is its number of procedures.
class Plan : public ILoadSaveSettingsCallback {
public:
    bool OnResult(LoadSaveSettingsDialog* dialog, IniFile* document, const std::string& section) override {
        ++calls;
        if (dialog->isSaving())
            document->set(section, "cnt", count);
        else
            count = document->get(section, "cnt");
        return accepts;
    }

    std::string count = "3";
    int calls = 0;
    bool accepts = true;
};

class LoadSaveTest : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        path = home + "/fpl.ini";
        exchange = home + "/exchange.ini";
        document.setFromString(
            "[Round trip]\ncnt = 1\n[Alps/Zell]\ncnt = 2\n[Alps/Innsbruck by the Brenner pass]\ncnt = 5\n");
        ASSERT_TRUE(document.Save(path));
    }
    bool run(bool canSave = true) {
        LoadSaveSettingsDialog dialog(&plan, context.get(), &document,
                                      {L"Saved Flight Plans", path, exchange, "My plan", canSave, true});
        return dialog.run();
    }
    std::string onDisk() const { return IniFile(path).toString(); }
    /// The n-th button of a style, from above.
    irr::gui::IGUIElement* sign(const char* style, std::size_t which) {
        std::map<int, irr::gui::IGUIElement*> found;
        collect(root, style, found);
        for (const auto& [y, element] : found)
            if (which-- == 0)
                return element;
        return nullptr;
    }
    static void collect(irr::gui::IGUIElement* in, const std::string& style,
                        std::map<int, irr::gui::IGUIElement*>& found) {
        if (style == in->getName())
            found[in->getAbsolutePosition().UpperLeftCorner.Y] = in;
        for (irr::gui::IGUIElement* child : in->getChildren())
            collect(child, style, found);
    }
    void enter(const wchar_t* text) { environment->getFocus()->setText(text); }

    std::string path, exchange;
    IniFile document;
    Plan plan;
};

} // namespace

TEST_P(LoadSaveTest, LoadsAnEntryOfAFolder) {
    script->then([&] {
        picture("saves");
        for (const wchar_t* button : {L"Load", L"Save", L"Cancel", L"New Folder", L"Import", L"Export", L"Delete All"})
            expectTouchable(findText(root, button));
        expectTouchable(sign("binTransparent", 0));
        expectTouchable(sign("renameTransparent", 0));
        EXPECT_FALSE(findText(root, L"Load")->isEnabled());
        click(L"Alps /");
    });
    script->then([&] {
        EXPECT_TRUE(isShown(L"Saved Flight Plans  /  Alps"));
        click(L"Zell");
    });
    script->then([&] {
        picture("saves-folder");
        click(L"Load");
    });
    EXPECT_TRUE(run());
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ("2", plan.count);
    EXPECT_FALSE(isShown(L"Cancel"));
}

TEST_P(LoadSaveTest, SavesAndReplacesOnlyAfterAQuestion) {
    script->then([&] { click(L"Save"); });
    EXPECT_TRUE(run());
    EXPECT_EQ("3", IniFile(path).get("My plan", "cnt"));
    plan.count = "7";
    const std::string before = onDisk();
    script->then([&] { click(L"Save"); }).then([&] {
        EXPECT_EQ(L"\"My plan\" is there already.", told());
        EXPECT_EQ(1, plan.calls);
        picture("saves-question");
        click(L"Cancel");
    });
    script->then([&] { click(L"Cancel"); });
    EXPECT_FALSE(run());
    EXPECT_EQ(before, onDisk());
    script->then([&] { click(L"Save"); }).then([&] { click(L"Replace"); });
    EXPECT_TRUE(run());
    EXPECT_EQ("7", IniFile(path).get("My plan", "cnt"));
}

TEST_P(LoadSaveTest, WhatFailsIsToldAndLosesNothing) {
    const std::string before = onDisk();
    std::filesystem::create_directory(path + ".new");
    script->then([&] { click(L"Save"); }).then([&] {
        EXPECT_EQ(L"Nothing was changed: it could not be saved. It is not allowed to write there.", told());
        click(L"Ok");
    });
    script->then([&] { click(sign("binTransparent", 1)); }).then([&] { click(L"Delete"); });
    script->then([&] { click(L"Ok"); }).then([&] { findText(root, L"My plan")->setText(L"../../escape"); });
    script->then([&] { click(L"Save"); }).then([&] {
        EXPECT_EQ(L"Please enter a name of 1 to 100 characters without / and \\.", told());
        click(L"Ok");
    });
    script->then([&] {
        EXPECT_TRUE(isShown(L"Round trip"));
        plan.accepts = false;
        click(L"Round trip");
    });
    script->then([&] { click(L"Load"); }).then([&] {
        EXPECT_TRUE(isShown(L"Load"));
        key(0xA6);
    });
    EXPECT_FALSE(run());
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ(before, onDisk());
    EXPECT_EQ(before, document.toString());
}

TEST_P(LoadSaveTest, FoldersAreMadeRenamedAndThrownAway) {
    script->then([&] { click(L"New Folder"); });
    script->then([&] {
        enter(L"Coast");
        click(L"Ok");
    });
    script->then([&] {
        EXPECT_TRUE(isShown(L"Coast /"));
        click(sign("renameTransparent", 2));
    });
    script->then([&] {
        enter(L"Home");
        click(L"Ok");
    });
    script->then([&] {
        EXPECT_TRUE(isShown(L"Home"));
        click(sign("binTransparent", 0));
    });
    script->then([&] {
        EXPECT_EQ(L"Do you really want to delete \"Alps\" with 2 entries?", told());
        click(L"Delete");
    });
    script->then([&] { click(L"Coast /"); }).then([&] { click(L"Save"); });
    EXPECT_TRUE(run());
    EXPECT_TRUE(script->isDone());
    IniFile expected;
    expected.setFromString("[Home]\ncnt = 1\n[Coast/]\nfolder = 1\n[Coast/My plan]\ncnt = 3\n");
    EXPECT_EQ(expected.toString(), onDisk());
}

TEST_P(LoadSaveTest, ExchangesWithAnotherDocument) {
    script->then([&] { click(L"Import"); }).then([&] {
        EXPECT_NE(std::wstring::npos, told().find(L"There is nothing to import in "));
        click(L"Ok");
    });
    script->then([&] { click(L"Export"); }).then([&] { click(L"Ok"); });
    script->then([&] {
        EXPECT_EQ(onDisk(), IniFile(exchange).toString());
        writeStringToFile(exchange, "[Round trip]\ncnt = 9\n[Sea]\ncnt = 4\n");
        click(L"Import");
    });
    script->then([&] {
        EXPECT_EQ(L"1 entry with another content here already.", told());
        click(L"Keep");
    });
    script->then([&] { click(L"Ok"); }).then([&] { click(L"Delete All"); }).then([&] { click(L"Cancel"); });
    script->then([&] { key(0xA6); });
    EXPECT_FALSE(run());
    EXPECT_TRUE(script->isDone());
    EXPECT_EQ("1", document.get("Round trip", "cnt"));
    EXPECT_EQ("4", document.get("Sea", "cnt"));
}

TEST_P(LoadSaveTest, AStormOfClicksAndKeysHarmsNothing) {
    for (int i = 0; i < 40; ++i)
        document.set("Plan " + std::to_string(i), "cnt", "1");
    document.set("A folder with a name that is much longer than any list is wide, and goes on for a while/x", "cnt",
                 "1");
    for (int storm = 0; storm < 5; ++storm)
        script->then([&, storm] {
            if (storm == 0)
                picture("saves-many");
            unsigned seed = static_cast<unsigned>(storm) * 7919u + 17u;
            for (int i = 0; i < 60; ++i) {
                seed = seed * 1664525u + 1013904223u;
                const int x = static_cast<int>((seed >> 8) % GetParam().Width);
                clickAt({x, static_cast<int>((seed >> 4) % GetParam().Height)});
                key(i % 5 == 0 ? 0xA6 : irr::KEY_RETURN, L'\r');
            }
        });
    run();
    EXPECT_FALSE(isShown(L"Load"));
}

INSTANTIATE_TEST_SUITE_P(Screens, LoadSaveTest, allScreens());

} // namespace skyvane
