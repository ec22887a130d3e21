#include "displays/setup/PanelSetupPreview.h"

#include "core/Context.h"
#include "core/geometry/Rectangles.h"
#include "core/ini/IniFile.h"
#include "core/text/Utf8.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/layout/PanelArrangement.h"
#include "gui/skin/Skin.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<int>;

const irr::video::SColor unknownColor(0xff30363d);
const irr::video::SColor unknownTextColor(0xff9aa4b0);
const irr::video::SColor rimColor(0xff5a6472);
const irr::video::SColor barColor(0xff1d242c); // what the menu keeps for itself
constexpr double lowGuide = 0.25, highGuide = 0.75;
constexpr int lineWidth = 2;

Rect fittedPlace(Context* context, const Rect& place) {
    const ScreenMetrics& metrics = context->getScreenMetrics();
    return makeXic(place, static_cast<float>(metrics.width) / static_cast<float>(std::max(1u, metrics.height)));
}

} // namespace

PanelSetupPreview::PanelSetupPreview(Context* context, PanelArrangement& arrangement, IniFile& document,
                                     const PanelArea& area, irr::gui::IGUIElement* parent, const Rect& place)
    : IGUIElement(irr::gui::EGUIET_ELEMENT, context->getIrrlichtDevice()->getGUIEnvironment(), parent, -1,
                  fittedPlace(context, place)),
      context_(context), arrangement_(arrangement), document_(document), area_(area),
      drag_({area.width, area.bottom - area.top}) {}

Rect PanelSetupPreview::areaRect() const {
    const double scale =
        static_cast<double>(AbsoluteRect.getHeight()) / std::max(1u, context_->getScreenMetrics().height);
    return {AbsoluteRect.UpperLeftCorner.X, AbsoluteRect.UpperLeftCorner.Y + static_cast<int>(area_.top * scale),
            AbsoluteRect.LowerRightCorner.X, AbsoluteRect.UpperLeftCorner.Y + static_cast<int>(area_.bottom * scale)};
}

/// What lies beyond the screen is cut: there is nothing to see of it.
Rect PanelSetupPreview::rectOf(const PanelFractions& fractions) const {
    const Rect area = areaRect();
    Rect rect = panelRect(fractions, {area.getWidth(), 0, area.getHeight()}) + area.UpperLeftCorner;
    rect.clipAgainst(AbsoluteRect);
    return rect;
}

PanelPoint PanelSetupPreview::pointOf(int x, int y) const {
    const Rect area = areaRect();
    return {static_cast<double>(x - area.UpperLeftCorner.X) / std::max(1, area.getWidth()),
            static_cast<double>(y - area.UpperLeftCorner.Y) / std::max(1, area.getHeight())};
}

void PanelSetupPreview::draw() {
    Drawer2D* drawer = context_->getDrawer();
    drawer->resetViewPort();
    drawer->drawFilledRect(AbsoluteRect, barColor);
    drawer->drawFilledRect(areaRect(), context_->getSkin()->getColor("bg"));
    for (const int panel : arrangement_.getPanels())
        drawPanel(panel);
    drawer->resetViewPort();
    if (arrangement_.getChosen() != PanelArrangement::none)
        drawChosen(arrangement_.getFractions(arrangement_.getChosen()));
    drawer->drawOutline(AbsoluteRect, rimColor);
    drawer->flush();
    IGUIElement::draw();
}

void PanelSetupPreview::drawPanel(int panel) const {
    const Rect rect = rectOf(arrangement_.getFractions(panel));
    if (rect.getWidth() < 1 || rect.getHeight() < 1)
        return;
    IPanelFactory* factory = context_->getPanelManager()->getPanelFactory(arrangement_.getFactoryIndex(panel));
    if (!factory)
        return drawUnknown(panel, rect);
    factory->loadSetupFromIni(&document_, PanelArrangement::sectionOf(panel));
    factory->renderPreview(rect);
}

/// A kind of panel that this program doesn't have keeps its place, and its name tells what it is.
void PanelSetupPreview::drawUnknown(int panel, const Rect& rect) const {
    Drawer2D* drawer = context_->getDrawer();
    drawer->drawFilledRect(rect, unknownColor);
    drawer->drawOutline(rect, rimColor);
    drawer->flush();
    if (irr::gui::IGUIFont* font = Environment->getSkin()->getFont())
        font->draw(decodeUtf8(arrangement_.getTitle(panel)).c_str(), rect, unknownTextColor, true, true, &rect);
}

void PanelSetupPreview::drawChosen(const PanelFractions& panel) const {
    const auto level = static_cast<irr::u32>(blink() * 255.0f);
    const irr::video::SColor color(255, level, level, level);
    const Rect rect = rectOf(panel);
    Drawer2D* drawer = context_->getDrawer();
    drawer->drawOutline(rect, color, lineWidth);
    drawer->drawOutline(rectOf(handleOf(panel)), color, lineWidth);
    for (const double guide : {lowGuide, highGuide}) {
        const int x = rect.UpperLeftCorner.X + static_cast<int>(guide * rect.getWidth());
        const int y = rect.UpperLeftCorner.Y + static_cast<int>(guide * rect.getHeight());
        drawer->drawFilledRect({x, rect.UpperLeftCorner.Y, x + 1, rect.LowerRightCorner.Y}, color);
        drawer->drawFilledRect({rect.UpperLeftCorner.X, y, rect.LowerRightCorner.X, y + 1}, color);
    }
}

bool PanelSetupPreview::OnEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_MOUSE_INPUT_EVENT)
        return IGUIElement::OnEvent(event);
    const PanelPoint at = pointOf(event.MouseInput.X, event.MouseInput.Y);
    switch (event.MouseInput.Event) {
    case irr::EMIE_LMOUSE_PRESSED_DOWN:
        return press(at);
    case irr::EMIE_MOUSE_MOVED:
        if (drag_.move(at, MilliSecs()))
            arrangement_.setFractions(arrangement_.getChosen(), drag_.getPanel());
        return drag_.isActive();
    case irr::EMIE_LMOUSE_LEFT_UP:
        release(at);
        return true;
    default:
        return IGUIElement::OnEvent(event);
    }
}

bool PanelSetupPreview::press(PanelPoint at) {
    const int chosen = arrangement_.getChosen();
    choosing_ = chosen == PanelArrangement::none || !drag_.press(arrangement_.getFractions(chosen), at, MilliSecs());
    return true;
}

void PanelSetupPreview::release(PanelPoint at) {
    const int chosen = arrangement_.getChosen();
    if (choosing_) {
        arrangement_.choose(panelAt(at, PanelArrangement::none));
        choosing_ = false;
        return;
    }
    const PanelDrag::Result result = drag_.release(at, MilliSecs());
    if (result == PanelDrag::Result::Nothing || chosen == PanelArrangement::none)
        return;
    arrangement_.setFractions(chosen, drag_.getPanel());
    const int other = result == PanelDrag::Result::Tapped ? panelAt(at, chosen) : PanelArrangement::none;
    if (other != PanelArrangement::none)
        arrangement_.choose(other);
}

int PanelSetupPreview::panelAt(PanelPoint at, int passedOver) const {
    int found = PanelArrangement::none;
    for (const int panel : arrangement_.getPanels())
        if (panel != passedOver && gripOf(arrangement_.getFractions(panel), at) != PanelGrip::None)
            found = panel;
    return found;
}

} // namespace skyvane
