#pragma once

#include "displays/layout/PanelDrag.h"

#include <irrlicht.h>
#include <string>

namespace skyvane {

class Context;
class IPanelFactory;
class IniFile;
class PanelArrangement;

/// A page of the arrangement as a small screen: its panels as their factories preview them, the chosen one outlined
/// with its guide lines and its handle. A pointer drags the chosen panel; a tap chooses the uppermost panel under it.
///
/// Changes go into the arrangement at once. Main thread only.
class PanelSetupPreview : public irr::gui::IGUIElement {
public:
    /// All outlive the element; the document is that of the arrangement. `place` within the parent is filled as far as
    /// the screen's shape allows.
    PanelSetupPreview(Context* context, PanelArrangement& arrangement, IniFile& document, const PanelArea& area,
                      irr::gui::IGUIElement* parent, const irr::core::rect<int>& place);

    void draw() override;
    bool OnEvent(const irr::SEvent& event) override;

private:
    /// Of the panel area, in pixels of the real screen, on the preview.
    irr::core::rect<int> areaRect() const;
    irr::core::rect<int> rectOf(const PanelFractions& fractions) const;
    PanelPoint pointOf(int x, int y) const;
    void drawPanel(int panel) const;
    void drawUnknown(int panel, const irr::core::rect<int>& rect) const;
    void drawChosen(const PanelFractions& panel) const;
    bool press(PanelPoint at);
    void release(PanelPoint at);
    /// The uppermost panel there, other than the one that is passed over; none when there is no other.
    int panelAt(PanelPoint at, int passedOver) const;

    Context* context_;
    PanelArrangement& arrangement_;
    IniFile& document_;
    PanelArea area_;
    PanelDrag drag_;
    bool choosing_ = false; ///< A press beside the chosen panel: its release chooses.
};

} // namespace skyvane
