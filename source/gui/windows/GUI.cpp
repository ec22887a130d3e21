#include "gui/windows/GUI.h"

#include "core/text/Utf8.h"
#include "gui/layout/WindowLayout.h"
#include "gui/skin/Skin.h"
#include "gui/windows/ExtendedCheckBox.h"
#include "gui/windows/ExtendedEditBox.h"

namespace skyvane {
namespace {

using irr::gui::IGUIElement;
using irr::gui::IGUIEnvironment;
using Kind = LayoutElement::Kind;
using Rect = irr::core::rect<int>;

irr::gui::EGUI_ALIGNMENT engineAlignment(LayoutElement::Alignment alignment) {
    return static_cast<irr::gui::EGUI_ALIGNMENT>(alignment);
}

int touchHeight(IGUIEnvironment* environment) {
    return environment->getSkin()->getSize(irr::gui::EGDS_BUTTON_HEIGHT);
}

IGUIElement* addText(IGUIEnvironment* environment, const LayoutElement& layout, const Rect& rect, IGUIElement* parent) {
    irr::gui::IGUIStaticText* text =
        environment->addStaticText(decodeUtf8(layout.text).c_str(), rect, false, true, parent, -1);
    text->setTextAlignment(engineAlignment(layout.horizontal), engineAlignment(layout.vertical));
    return text;
}

IGUIElement* addListBox(IGUIEnvironment* environment, const Rect& rect, IGUIElement* parent) {
    irr::gui::IGUIListBox* box = environment->addListBox(rect, parent, -1, true);
    box->setItemHeight(touchHeight(environment));
    return box;
}

IGUIElement* addPlain(IGUIEnvironment* environment, const LayoutElement& layout, const Rect& rect,
                      IGUIElement* parent) {
    switch (layout.kind) {
    case Kind::Button:
        return environment->addButton(rect, parent, -1, decodeUtf8(layout.text).c_str());
    case Kind::Text:
        return addText(environment, layout, rect, parent);
    case Kind::ListBox:
        return addListBox(environment, rect, parent);
    case Kind::ComboBox:
        return environment->addComboBox(rect, parent, -1);
    default:
        return environment->addScrollBar(layout.kind == Kind::HorizontalScrollBar, rect, parent, -1);
    }
}

/// Whether a window that was given the screen has but narrow bands beside it.
bool isNearlyWholeScreen(IGUIEnvironment* environment, const Rect& area, const Rect& window) {
    constexpr double leastShare = 0.7;
    return area == environment->getRootGUIElement()->getAbsolutePosition() &&
           window.getArea() >= leastShare * area.getArea();
}

std::unique_ptr<ExtendedGUIElement> makeCheckBox(IGUIEnvironment* environment, const LayoutElement& layout,
                                                 const Rect& rect, IGUIElement* parent) {
    irr::gui::IGUICheckBox* box = environment->addCheckBox(false, rect, parent, -1, decodeUtf8(layout.text).c_str());
    return std::make_unique<ExtendedCheckBox>(box, layout.domain, layout.defaultText,
                                              ExtendedCheckBox::Links{layout.hides, layout.switches, layout.partners});
}

std::unique_ptr<ExtendedGUIElement> makeEditBox(IGUIEnvironment* environment, const LayoutElement& layout,
                                                const Rect& rect, IGUIElement* parent) {
    irr::gui::IGUIEditBox* box =
        environment->addEditBox(decodeUtf8(layout.text).c_str(), rect, true, parent, layout.editId);
    box->setTextAlignment(engineAlignment(layout.horizontal), engineAlignment(layout.vertical));
    return std::make_unique<ExtendedEditBox>(box, layout.domain, layout.defaultText);
}

std::unique_ptr<ExtendedGUIElement> makeElement(IGUIEnvironment* environment, const LayoutElement& layout,
                                                const Rect& rect, IGUIElement* parent) {
    if (layout.kind == Kind::CheckBox)
        return makeCheckBox(environment, layout, rect, parent);
    if (layout.kind == Kind::EditBox)
        return makeEditBox(environment, layout, rect, parent);
    return std::make_unique<ExtendedGUIElement>(addPlain(environment, layout, rect, parent), layout.domain,
                                                layout.defaultText);
}

} // namespace

irr::gui::IGUIWindow* addWindowForRatio(IGUIEnvironment* environment, IniFile* document, Rect area, bool modal,
                                        IGUIElement* parent, int id) {
    const Rect place = windowRect(area, WindowLayout::read(*document).ratio);
    irr::gui::IGUIWindow* window = environment->addWindow(place, modal, L"", parent, id);
    if (isNearlyWholeScreen(environment, area, place))
        Skin::setWholeScreen(window);
    window->getCloseButton()->setVisible(false);
    window->setDraggable(false);
    window->setDrawTitlebar(false);
    return window;
}

GUI::GUI(IGUIEnvironment* environment, IniFile* document, Rect area, IGUIElement* parent, bool keepAspect) {
    const WindowLayout layout = WindowLayout::read(*document);
    for (const LayoutElement& element : layout.elements)
        add(environment, element, elementRect(element.rect, area, keepAspect ? layout.ratio : 0.0), parent);
    for (const auto& element : owned_)
        element->OnFinish(elements);
}

GUI::~GUI() = default;

void GUI::add(IGUIEnvironment* environment, const LayoutElement& layout, const Rect& rect, IGUIElement* parent) {
    if (layout.kind == Kind::SpecialRectangle) {
        specialRectangles_[layout.id] = rect;
        return;
    }
    owned_.push_back(makeElement(environment, layout, rect, parent));
    owned_.back()->setDefaults();
    elements[layout.id] = owned_.back().get();
}

IGUIElement* GUI::getElement(const std::string& id) const {
    const auto found = elements.find(id);
    return found == elements.end() ? nullptr : found->second->getElement();
}

Rect GUI::getSpecialRectangle(const std::string& id) const {
    const auto found = specialRectangles_.find(id);
    return found == specialRectangles_.end() ? Rect(0, 0, 0, 0) : found->second;
}

void GUI::setVisible(bool visible) {
    for (const auto& element : owned_)
        element->getElement()->setVisible(visible);
    if (!visible)
        return;
    for (const auto& element : owned_)
        if (auto* box = dynamic_cast<ExtendedCheckBox*>(element.get()))
            box->applyToGroups();
}

void GUI::setDefaults() {
    for (const auto& element : owned_)
        element->setDefaults();
}

void GUI::Update(const irr::SEvent::SGUIEvent& event) {
    for (const auto& element : owned_)
        element->OnEvent(event);
}

Rect windowArea(const irr::gui::IGUIElement* window) {
    const Rect rect = window->getAbsolutePosition();
    return {0, 0, rect.getWidth(), rect.getHeight()};
}

} // namespace skyvane
