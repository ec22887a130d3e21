#pragma once

#include "gui/windows/ExtendedGUIElement.h"

#include <irrlicht.h>
#include <memory>
#include <vector>

namespace skyvane {

class IniFile;
struct LayoutElement;

/// An empty window of the document's ratio, as large as the area allows and centred in it: no title, no close button,
/// not draggable. The window dies with its parent; null as parent is the whole screen. A window that nearly fills the
/// screen is drawn without bands beside it.
irr::gui::IGUIWindow* addWindowForRatio(irr::gui::IGUIEnvironment* environment, IniFile* document,
                                        irr::core::rect<int> area, bool modal, irr::gui::IGUIElement* parent, int id);

/// The elements of a layout document inside a window, found by name.
///
///     IniFile document;
///     document.setFromString(context->isPortrait() ? portraitLayout : landscapeLayout);
///     irr::gui::IGUIWindow* window = addWindowForRatio(environment, &document, screen, true, nullptr, -1);
///     GUI gui(environment, &document, windowArea(window), window, false);
///     ok = gui.getElement("okButton");
///
/// The owner of the window passes every GUI event to Update(). Owns what it knows about the elements; the elements
/// themselves belong to the window. Main thread only.
class GUI {
public:
    /// Positions are relative to the parent. `keepAspect` keeps the elements' shape where the area has another ratio
    /// than the design.
    GUI(irr::gui::IGUIEnvironment* environment, IniFile* document, irr::core::rect<int> area,
        irr::gui::IGUIElement* parent, bool keepAspect);
    ~GUI();
    GUI(const GUI&) = delete;
    GUI& operator=(const GUI&) = delete;

    /// Null for an unknown id.
    irr::gui::IGUIElement* getElement(const std::string& id) const;
    /// The same as a button, a text...; null when the element is of another kind.
    template <class Element>
    Element* get(const std::string& id) const {
        return dynamic_cast<Element*>(getElement(id));
    }
    /// An empty rectangle for an unknown id.
    irr::core::rect<int> getSpecialRectangle(const std::string& id) const;
    const std::map<std::string, irr::core::rect<int>>& getAllSpecialRectangles() const { return specialRectangles_; }

    /// All elements; those of a group whose check box isn't checked stay hidden.
    void setVisible(bool visible);
    void setDefaults();
    void Update(const irr::SEvent::SGUIEvent& event);

    ExtendedGUIElement::Elements elements;

private:
    void add(irr::gui::IGUIEnvironment* environment, const LayoutElement& layout, const irr::core::rect<int>& rect,
             irr::gui::IGUIElement* parent);

    std::vector<std::unique_ptr<ExtendedGUIElement>> owned_;
    std::map<std::string, irr::core::rect<int>> specialRectangles_;
};

/// The inside of a window, from (0, 0).
irr::core::rect<int> windowArea(const irr::gui::IGUIElement* window);

} // namespace skyvane
