#include "displays/instruments/PanelTap.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

const irr::core::rect<int> area(10, 10, 50, 50);

PanelTap::Result take(PanelTap& tap, irr::EMOUSE_INPUT_EVENT kind, int x, int y) {
    irr::SEvent event{};
    event.EventType = irr::EET_MOUSE_INPUT_EVENT;
    event.MouseInput.Event = kind;
    event.MouseInput.X = x;
    event.MouseInput.Y = y;
    return tap.take(event, area);
}

TEST(PanelTap, needsPressAndReleaseInside) {
    PanelTap tap;
    EXPECT_EQ(take(tap, irr::EMIE_LMOUSE_LEFT_UP, 20, 20), PanelTap::NotMine) << "a release alone";
    EXPECT_EQ(take(tap, irr::EMIE_LMOUSE_PRESSED_DOWN, 20, 20), PanelTap::Pressed);
    EXPECT_EQ(take(tap, irr::EMIE_MOUSE_MOVED, 21, 20), PanelTap::NotMine);
    EXPECT_EQ(take(tap, irr::EMIE_LMOUSE_LEFT_UP, 22, 20), PanelTap::Tapped);
    EXPECT_EQ(take(tap, irr::EMIE_LMOUSE_LEFT_UP, 22, 20), PanelTap::NotMine) << "once";
    take(tap, irr::EMIE_LMOUSE_PRESSED_DOWN, 20, 20);
    EXPECT_EQ(take(tap, irr::EMIE_LMOUSE_LEFT_UP, 60, 20), PanelTap::NotMine) << "dragged out";
    EXPECT_EQ(take(tap, irr::EMIE_LMOUSE_PRESSED_DOWN, 60, 20), PanelTap::NotMine);
    EXPECT_EQ(take(tap, irr::EMIE_LMOUSE_LEFT_UP, 20, 20), PanelTap::NotMine) << "dragged in";
}

} // namespace
} // namespace skyvane
