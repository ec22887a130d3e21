#include "core/Factories.h"
#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "displays/layout/PanelArrangement.h"
#include "displays/setup/PanelSetupPreview.h"
#include "displays/setup/PresetDialog.h"
#include "gui/windows/DialogFixture.h"

namespace skyvane {
namespace {

using irr::core::position2di;
using irr::gui::IGUIElement;
using Steps = std::vector<std::function<void()>>;

/// The panel manager's own screens in the program with its standard document, clicked through at both shapes.
class SetupScreensTest : public DialogFixture {
protected:
    void SetUp() override {
        setClock(&clock);
        DialogFixture::SetUp();
        if (!context)
            return;
        panels = context->getPanelManager();
        registerPanelFactories(*context, *panels);
        IniFile config(context->getConfigPath());
        config.set("", "optimized", "0");
        config.Save(context->getConfigPath());
        panels->loadPanelSettingsFromIni(&config, nullptr, false, false);
    }
    void TearDown() override {
        DialogFixture::TearDown();
        setClock(nullptr);
    }
    void setup(const Steps& steps) {
        for (const auto& step : steps)
            script->then(step);
        panels->selectPanelSettings();
        EXPECT_TRUE(script->isDone());
    }
    void drag(position2di from, position2di to) {
        post(irr::EMIE_LMOUSE_PRESSED_DOWN, from);
        clock.advance(0.1);
        post(irr::EMIE_MOUSE_MOVED, to);
        clock.advance(0.5);
        post(irr::EMIE_LMOUSE_LEFT_UP, to);
    }
    std::function<void()> press(const wchar_t* text) {
        return [this, text] { click(text); };
    }
    std::function<void()> keep(const char* name) {
        return [this, name] { picture(name); };
    }
    /// Chooses a row of the list that was made as the first or second of the screen.
    void chooseRow(int list, const wchar_t* text) {
        std::vector<irr::gui::IGUIListBox*> lists;
        collect(root, irr::gui::EGUIET_LIST_BOX, lists);
        ASSERT_GT(lists.size(), static_cast<size_t>(list));
        irr::gui::IGUIListBox* box = lists[static_cast<size_t>(list)];
        box->setSelected(text);
        ASSERT_GE(box->getSelected(), 0);
    }
    template <class Element>
    static void collect(IGUIElement* below, irr::gui::EGUI_ELEMENT_TYPE type, std::vector<Element*>& found) {
        if (below->getType() == type)
            found.push_back(static_cast<Element*>(below));
        for (IGUIElement* child : below->getChildren())
            collect(child, type, found);
    }
    /// The picture of the page.
    irr::core::rect<int> preview() const {
        std::vector<IGUIElement*> elements;
        collect(root, irr::gui::EGUIET_ELEMENT, elements);
        for (IGUIElement* element : elements)
            if (dynamic_cast<PanelSetupPreview*>(element))
                return element->getAbsolutePosition();
        ADD_FAILURE() << "no picture of the page";
        return {};
    }

    ManualClock clock;
    PanelManager* panels = nullptr;
};

TEST_P(SetupScreensTest, aPanelIsAddedDraggedAndSaved) {
    const int screenWidth = static_cast<int>(GetParam().Width);
    irr::core::rect<int> place;
    setup({press(L">"), press(L">"), press(L">"), press(L">"), press(L">"), press(L">"), press(L">"),
           keep("empty-page"), press(L">"), [&] { chooseRow(0, L"Compass"); }, press(L"Add"),
           [&] {
               place = preview();
               EXPECT_NE(findText(root, L"Page:7"), nullptr);
               const position2di edge(place.UpperLeftCorner.X + 3, place.getCenter().Y);
               drag(edge, edge + position2di(place.getWidth() / 4, 0));
           },
           keep("added"), press(L"Ok")});
    ASSERT_GT(place.getWidth(), screenWidth / 4);
    IniFile saved(context->getConfigPath());
    EXPECT_EQ(saved.get("", "PanelCount"), "121");
    EXPECT_EQ(saved.get("P120", "FactoryName"), "Compass");
    EXPECT_EQ(saved.get("P120", "Page"), "7");
    EXPECT_EQ(saved.get("P120", "Portrait"), context->isPortrait() ? "1" : "0");
    EXPECT_NEAR(std::stod(saved.get("P120", "ViewPortSX")), 0.25, 0.01);
    EXPECT_EQ(saved.get("P120", "ViewPortTX"), "1");
    EXPECT_EQ(panels->getPageCount(), 8) << "loaded anew";
}

TEST_P(SetupScreensTest, aTapChoosesAndTheButtonsChangeTheDocumentOnlyWhenSaved) {
    const std::string before = IniFile(context->getConfigPath()).toString();
    const Steps changes = {
        press(L">"),    press(L">"),           press(L">"),      [&] { clickAt(preview().getCenter()); },
        keep("chosen"), press(L"Move to Top"), press(L"Remove"), press(L"PageUp")};
    Steps cancelled = changes, saved = changes;
    cancelled.push_back(press(L"Cancel"));
    setup(cancelled);
    EXPECT_EQ(IniFile(context->getConfigPath()).toString(), before);
    saved.push_back(press(L"Ok"));
    setup(saved);
    IniFile config(context->getConfigPath());
    EXPECT_EQ(config.get("", "PanelCount"), "119");
    EXPECT_FALSE(config.isSectionAvailable("P119"));
}

TEST_P(SetupScreensTest, anInstrumentAsksForItsOptions) {
    const auto fieldOn = [&](const wchar_t* answer) {
        return Steps{[&] { chooseRow(0, L"OneSegmentPanel"); }, press(L"Add"), keep("options"), press(answer),
                     press(L"Ok")};
    };
    setup(fieldOn(L"Cancel"));
    EXPECT_EQ(IniFile(context->getConfigPath()).get("", "PanelCount"), "120");
    setup(fieldOn(L"Ok"));
    IniFile config(context->getConfigPath());
    EXPECT_EQ(config.get("", "PanelCount"), "121");
    EXPECT_EQ(config.get("P120", "Type"), "HEADING");
    EXPECT_EQ(config.get("P120", "Color.B"), "128");
    EXPECT_EQ(config.get("P120", "Sensor0"), "-1");
}

TEST_P(SetupScreensTest, whatCannotBeSavedIsToldAndLosesNothing) {
    const std::string path = context->getConfigPath();
    setup({[&] { chooseRow(0, L"Altimeter"); }, press(L"Add"),
           [&] {
               std::filesystem::rename(path, path + ".kept");
               std::filesystem::create_directory(path);
           },
           press(L"Ok"), keep("not-saved"), press(L"Ok"),
           [&] {
               std::filesystem::remove(path);
               std::filesystem::rename(path + ".kept", path);
               EXPECT_NE(findText(root, L"Page:0"), nullptr) << "the screen stays";
           },
           press(L"Ok")});
    EXPECT_EQ(IniFile(path).get("", "PanelCount"), "121");
}

TEST_P(SetupScreensTest, wildDocumentsCanBeArranged) {
    IniFile config(context->getConfigPath());
    config.set("", "PanelCount", "10000");
    for (int panel = 0; panel < 10000; ++panel) {
        const std::string section = PanelArrangement::sectionOf(panel);
        config.set(section, "FactoryIndex", panel % 3 ? "5" : "-77");
        config.set(section, "Page", panel < 9 ? "0" : "99999999");
        config.set(section, "Portrait", context->isPortrait() ? "1" : "0");
        config.set(section, "ViewPortSX", panel % 2 ? "nan" : "1e300");
        config.set(section, "ViewPortTX", "-1e300");
    }
    config.Save(context->getConfigPath());
    setup({[&] { clickAt(preview().getCenter()); }, [&] { chooseRow(0, L"Altimeter"); }, press(L"Add"), keep("full"),
           press(L"Ok"), press(L"Cancel")});
}

TEST_P(SetupScreensTest, aPresetIsRememberedOrForFlightAlone) {
    const auto stored = [&] { return IniFile(context->getConfigPath()).get("", "optimized"); };
    const auto choose = [&](const wchar_t* text, bool remember) {
        PresetDialog dialog(context.get());
        dialog.show();
        auto* box = static_cast<irr::gui::IGUICheckBox*>(findText(root, L"Remember my choice"));
        if (box->isChecked() != remember)
            script->then(press(L"Remember my choice"));
        script->then(keep("preset"));
        script->then(press(text));
        ModalLoop loop(*script, {[&](const irr::SEvent& event) { dialog.processEvent(event); }});
        loop.run([&] { return dialog.isVisible(); });
        EXPECT_FALSE(dialog.isVisible());
    };
    choose(L"IFR", true);
    EXPECT_EQ(stored(), "3");
    choose(L"Glider", false);
    EXPECT_EQ(stored(), "");
    choose(L"IFR high", false);
    EXPECT_EQ(stored(), "");
}

INSTANTIATE_TEST_SUITE_P(Screens, SetupScreensTest,
                         testing::Values(irr::core::dimension2du(800, 480), irr::core::dimension2du(720, 1280)));

} // namespace
} // namespace skyvane
