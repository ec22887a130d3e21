#pragma once

#include "core/ini/IniFile.h"
#include "displays/PanelManager.h"
#include "gui/menu/Menu.h"
#include "gui/windows/DialogFixture.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"

namespace skyvane {

/// The program with the pages of the standard configuration, without panels.
class MenuFixture : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        if (!context)
            return;
        panels = context->getPanelManager();
        addStandardDataFactories(*context->getSensorManager());
        IniFile config(context->getConfigPath());
        config.set("", "optimized", "0");
        config.Save(context->getConfigPath());
        context->getSensorManager()->loadSensorSettingsFromIni(&config, false);
        panels->loadPanelSettingsFromIni(&config, nullptr, false, false);
        frame();
    }
    void frame(int count = 1) {
        for (int i = 0; i < count; ++i)
            frames->runFrame(nullptr);
    }
    /// Scrolls the column of the menu until the whole element is in sight.
    void reveal(irr::gui::IGUIElement* element) {
        const auto isInSight = [element] {
            return element->getAbsoluteClippingRect().getHeight() >= element->getAbsolutePosition().getHeight() - 1;
        };
        for (int i = 0; i < 20 && !isInSight(); ++i) {
            irr::core::position2di place(context->getRecommendedButtonWidth(), area().bottom / 2);
            post(irr::EMIE_LMOUSE_PRESSED_DOWN, place);
            place.Y -= 3 * context->getRecommendedButtonHeight();
            post(irr::EMIE_MOUSE_MOVED, place);
            post(irr::EMIE_LMOUSE_LEFT_UP, place);
            frame();
        }
        EXPECT_TRUE(isInSight());
    }
    /// Clicks what stands on the glass; the frame after it hears of it.
    void tap(const std::wstring& text) {
        if (irr::gui::IGUIElement* element = findText(root, text); element && panels->getMenu()->isOpen())
            reveal(element);
        click(text);
        frame();
    }
    void openMenu() {
        tap(L"Menu");
        ASSERT_TRUE(panels->getMenu()->isOpen());
    }
    PanelArea area() { return MenuBar::panelArea(context->getScreenMetrics()); }
    std::string setting(const char* key) {
        IniFile config(context->getConfigPath());
        return config.isAvailable("", key) ? config.get("", key) : "";
    }

    PanelManager* panels = nullptr;
};

} // namespace skyvane
