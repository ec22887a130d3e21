#include "core/engine/EngineRef.h"
#include "core/time/Time.h"
#include "gui/elements/AggregatableGUIElementAdapter.h"
#include "gui/elements/AggregateGUIElement.h"
#include "gui/elements/ScrollBar.h"

#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

using Options = AggregateGUIElement::Options;

/// Notes what bubbles up to it.
class Listener : public irr::gui::IGUIElement {
public:
    explicit Listener(irr::gui::IGUIEnvironment* gui)
        : IGUIElement(irr::gui::EGUIET_ELEMENT, gui, gui->getRootGUIElement(), -1, {0, 0, 800, 600}) {}
    bool OnEvent(const irr::SEvent& event) override {
        if (event.EventType == irr::EET_GUI_EVENT) {
            clicks += event.GUIEvent.EventType == irr::gui::EGET_BUTTON_CLICKED;
            if (event.GUIEvent.EventType == ElementActivated)
                activated = event.GUIEvent.Caller;
        }
        return IGUIElement::OnEvent(event);
    }
    int clicks = 0;
    irr::gui::IGUIElement* activated = nullptr;
};

/// A list 100 wide and 400 high at 50, 50, with ten rows of 100: a button in each of the first two, then plain ones.
class AggregateList : public ::testing::Test {
protected:
    AggregateList() : device(EngineRef<irr::IrrlichtDevice>::adopt(irr::createDevice(irr::video::EDT_NULL))) {
        setClock(&clock);
        clock.advance(10.0);
        gui = device->getGUIEnvironment();
        listener = EngineRef<Listener>::adopt(new Listener(gui));
    }
    ~AggregateList() override { setClock(nullptr); }

    AggregateGUIElement* make(bool scrollable, bool multi = false) {
        Options options;
        options.scrollable = scrollable;
        options.multiSelectable = multi;
        options.subElementWeight = 0.25f;
        AggregateGUIElement::Elements plain, chosen;
        for (int i = 0; i < 2; ++i) {
            button[i] = gui->addButton({0, 0, 10, 10}, nullptr, 100 + i, L"button");
            plain.push_back(new AggregatableGUIElementAdapter(gui, button[i]));
        }
        for (int i = 2; i < 10; ++i)
            chosen.push_back(row[i] = new AggregatableGUIElement(gui, LayoutWish(), i, nullptr));
        list = new AggregateGUIElement(gui, options, plain, chosen, listener.get(), {50, 50, 150, 450});
        list->drop();
        return list;
    }
    void mouse(irr::EMOUSE_INPUT_EVENT kind, int x, int y, bool down = true) {
        irr::SEvent event{};
        event.EventType = irr::EET_MOUSE_INPUT_EVENT;
        event.MouseInput.Event = kind;
        event.MouseInput.X = x;
        event.MouseInput.Y = y;
        event.MouseInput.Wheel = 0.0f;
        event.MouseInput.ButtonStates = down ? 1u : 0u;
        device->postEventFromUser(event);
    }
    void dragFinger(int x, int fromY, int toY) {
        mouse(irr::EMIE_MOUSE_MOVED, x, fromY, false);
        mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, x, fromY);
        for (int i = 1; i <= 4; ++i)
            mouse(irr::EMIE_MOUSE_MOVED, x, fromY + (toY - fromY) * i / 4);
        mouse(irr::EMIE_LMOUSE_LEFT_UP, x, toY, false);
    }
    void tap(int x, int y) { dragFinger(x, y, y); }

    ManualClock clock;
    EngineRef<irr::IrrlichtDevice> device;
    irr::gui::IGUIEnvironment* gui = nullptr;
    EngineRef<Listener> listener;
    AggregateGUIElement* list = nullptr;
    irr::gui::IGUIButton* button[2] = {};
    IAggregatableGUIElement* row[10] = {};
};

} // namespace

TEST_F(AggregateList, LaysOutByWeights) {
    make(false);
    EXPECT_EQ((irr::core::rect<irr::s32>(50, 50, 149, 90)), button[0]->getAbsolutePosition());
    EXPECT_EQ((irr::core::rect<irr::s32>(50, 410, 149, 450)), row[9]->getAbsolutePosition());
    make(true);
    EXPECT_EQ((irr::core::rect<irr::s32>(50, 950, 149, 1050)), row[9]->getAbsolutePosition());
    list->setRelativePosition(irr::core::rect<irr::s32>(0, 0, 200, 800));
    EXPECT_EQ((irr::core::rect<irr::s32>(0, 1800, 199, 2000)), row[9]->getAbsolutePosition());
}

TEST_F(AggregateList, AShortDragClicksAndALongOneOnlyScrolls) {
    make(true);
    dragFinger(100, 100, 97);
    EXPECT_EQ(1, listener->clicks);
    const int before = list->getScrollOffset();
    dragFinger(100, 140, 60);
    EXPECT_EQ(1, listener->clicks) << "the drag began and ended on buttons";
    EXPECT_EQ(before - 80, list->getScrollOffset());
    EXPECT_FALSE(button[0]->isPressed());
    list->setScrollShare(0.0f);
    tap(100, 100);
    EXPECT_EQ(2, listener->clicks) << "the next finger clicks again";
    mouse(irr::EMIE_MOUSE_MOVED, 100, 300, false);
    EXPECT_EQ(0, list->getScrollOffset()) << "the list knows that the finger left on the button";
}

TEST_F(AggregateList, GlidesOnWhenTheFingerLeaves) {
    make(true);
    list->draw();
    mouse(irr::EMIE_LMOUSE_PRESSED_DOWN, 100, 400);
    for (int i = 1; i <= 5; ++i) {
        mouse(irr::EMIE_MOUSE_MOVED, 100, 400 - 20 * i);
        clock.advance(0.04);
        list->draw();
    }
    mouse(irr::EMIE_LMOUSE_LEFT_UP, 100, 300, false);
    EXPECT_EQ(-100, list->getScrollOffset());
    for (int i = 0; i < 50; ++i) {
        clock.advance(0.04);
        list->draw();
    }
    EXPECT_LT(list->getScrollOffset(), -150);
    EXPECT_EQ(nullptr, listener->activated);
}

TEST_F(AggregateList, ATapChoosesOne) {
    make(true);
    IAggregatableGUIElement* selected = nullptr;
    EXPECT_FALSE(list->getSingleSelected(&selected));
    tap(100, 300);
    EXPECT_EQ(row[2], listener->activated);
    tap(100, 400);
    EXPECT_EQ(row[3], listener->activated);
    EXPECT_FALSE(row[2]->isActive());
    ASSERT_TRUE(list->getSingleSelected(&selected));
    EXPECT_EQ(row[3], selected);
    row[4]->setEnabled(false);
    dragFinger(100, 400, 300);
    tap(100, 400);
    EXPECT_EQ(row[3], listener->activated) << "a disabled row can't be chosen";
}

TEST_F(AggregateList, SeveralStayChosenWhereAllowed) {
    make(true, true);
    tap(100, 300);
    tap(100, 400);
    IAggregatableGUIElement* selected = row[9];
    EXPECT_FALSE(list->getSingleSelected(&selected));
    EXPECT_EQ(nullptr, selected);
    tap(100, 300);
    EXPECT_TRUE(list->getSingleSelected(&selected));
    EXPECT_EQ(row[3], selected);
}

TEST_F(AggregateList, ABarMovesTheListAndFollowsIt) {
    make(true);
    auto* bar = new ScrollBar(gui, 1.0f, false, -1, nullptr, LayoutWish(), listener.get(), {150, 50, 170, 450});
    bar->drop();
    bar->linkToScrollable(list);
    bar->setPos(0.5f, true);
    EXPECT_EQ(-300, list->getScrollOffset());
    dragFinger(100, 300, 200);
    EXPECT_NEAR(400.0f / 600.0f, bar->getPos(), 1e-4f);
    dragFinger(160, 60, 440);
    EXPECT_FLOAT_EQ(1.0f, bar->getPos());
    bar->setPos(7.0f, true);
    EXPECT_EQ(-600, list->getScrollOffset());
    list->remove();
    bar->setPos(0.0f, true); // unlinked by itself
    make(true);
    bar->linkToScrollable(list);
    bar->remove();
    list->setScrollShare(1.0f);
    EXPECT_EQ(-600, list->getScrollOffset());
}

TEST_F(AggregateList, ChildrenComeAndGo) {
    make(true);
    list->setScrollShare(1.0f);
    list->removeSubElements();
    EXPECT_EQ(0u, list->getSubElementCount());
    EXPECT_EQ(0, list->getScrollOffset());
    auto* late = new AggregatableGUIElement(gui, LayoutWish(), 1, nullptr);
    list->addSubElement(late, true);
    list->addSubElement(nullptr, true);
    tap(100, 100);
    EXPECT_EQ(late, listener->activated);
    late->remove();
    EXPECT_EQ(0u, list->getSubElementCount());
    tap(100, 100);
}

TEST_F(AggregateList, AComboBoxOpensOverTheRowsThatFollow) {
    Options options;
    options.scrollable = true;
    options.subElementWeight = 0.1f;
    auto* combo = gui->addComboBox({0, 0, 10, 10});
    for (const wchar_t* item : {L"one", L"two", L"three", L"four"})
        combo->addItem(item);
    AggregateGUIElement::Elements plain{new AggregatableGUIElementAdapter(gui, combo)};
    for (int i = 0; i < 2; ++i)
        plain.push_back(new AggregatableGUIElementAdapter(gui, button[i] = gui->addButton({0, 0, 10, 10})));
    list = new AggregateGUIElement(gui, options, plain, {}, listener.get(), {50, 50, 150, 450});
    list->drop();
    tap(60, 70);
    tap(60, 115);
    EXPECT_EQ(0, listener->clicks) << "the button lies below the open list";
    EXPECT_GT(combo->getSelected(), 0);
    tap(60, 110);
    EXPECT_EQ(1, listener->clicks) << "the list is closed";
    EXPECT_EQ((irr::core::rect<irr::s32>(50, 90, 149, 130)), button[0]->getAbsolutePosition());
}

// Fixed seed: fingers, wheels, rows that come and go, in any order.
TEST_F(AggregateList, AStormLeavesItInItsRange) {
    make(true);
    std::mt19937 random(7);
    const auto below = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    const irr::EMOUSE_INPUT_EVENT kinds[] = {irr::EMIE_LMOUSE_PRESSED_DOWN, irr::EMIE_LMOUSE_LEFT_UP,
                                             irr::EMIE_MOUSE_MOVED, irr::EMIE_MOUSE_WHEEL, irr::EMIE_MOUSE_MOVED};
    for (int i = 0; i < 20000; ++i) {
        mouse(kinds[below(5)], below(400) - 100, below(800) - 100, below(3) > 0);
        if (below(50) == 0)
            list->addSubElement(new AggregatableGUIElement(gui, LayoutWish(), -1, nullptr), below(2) == 0);
        if (below(40) == 0 && list->getSubElementCount() > 3)
            (*list->getChildren().getLast())->remove();
        if (below(10) == 0) {
            clock.advance(0.04);
            list->draw();
        }
        const int content = static_cast<int>(list->getSubElementCount()) * 100;
        ASSERT_LE(list->getScrollOffset(), 0);
        ASSERT_GE(list->getScrollOffset(), -std::max(0, content - 400));
    }
}

} // namespace skyvane
