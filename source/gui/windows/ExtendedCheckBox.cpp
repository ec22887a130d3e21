#include "gui/windows/ExtendedCheckBox.h"

#include "core/text/Numbers.h"

namespace skyvane {
namespace {

constexpr int noGroup = -1;

bool isInGroup(const ExtendedGUIElement& element, int group) {
    return group != noGroup && element.getDomain() != 0 && element.getDomain() == group;
}

} // namespace

ExtendedCheckBox::ExtendedCheckBox(irr::gui::IGUICheckBox* box, int domain, std::string defaultText, Links links)
    : ExtendedGUIElement(box, domain, std::move(defaultText)), links_(std::move(links)) {}

void ExtendedCheckBox::setDefaults() {
    box()->setChecked(toBool(getDefaultText()));
    applyToGroups();
}

void ExtendedCheckBox::applyToGroups() {
    for (ExtendedGUIElement* element : shown_)
        element->getElement()->setVisible(isChecked());
    for (ExtendedGUIElement* element : enabled_)
        element->getElement()->setEnabled(isChecked());
}

void ExtendedCheckBox::OnEvent(const irr::SEvent::SGUIEvent& event) {
    if (event.EventType != irr::gui::EGET_CHECKBOX_CHANGED || event.Caller != getElement())
        return;
    if (!partners_.empty())
        box()->setChecked(true);
    applyToGroups();
    for (ExtendedGUIElement* partner : partners_)
        partner->sendIntMessage(this, UncheckMessage);
}

void ExtendedCheckBox::OnFinish(Elements& elements) {
    for (const std::string& name : links_.partners) {
        const auto found = elements.find(name);
        ExtendedCheckBox* partner = found == elements.end() ? nullptr : dynamic_cast<ExtendedCheckBox*>(found->second);
        if (!partner || partner == this)
            continue;
        partner->box()->setChecked(partner->isChecked() && !isChecked());
        partners_.push_back(partner);
    }
    for (const auto& [id, element] : elements) {
        if (isInGroup(*element, links_.hides))
            shown_.push_back(element);
        if (isInGroup(*element, links_.switches))
            enabled_.push_back(element);
    }
    applyToGroups();
}

void ExtendedCheckBox::sendIntMessage(ExtendedGUIElement*, int message) {
    if (message != UncheckMessage)
        return;
    box()->setChecked(false);
    applyToGroups();
}

} // namespace skyvane
