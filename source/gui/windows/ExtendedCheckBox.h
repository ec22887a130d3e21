#pragma once

#include "gui/windows/ExtendedGUIElement.h"

#include <vector>

namespace skyvane {

/// A check box that shows one visibility group and enables another while it is checked, and that may be one of a radio
/// group, in which one box stays checked.
class ExtendedCheckBox : public ExtendedGUIElement {
public:
    struct Links {
        int hides = -1;                    ///< Group shown only while checked; -1 for none.
        int switches = -1;                 ///< Group enabled only while checked; -1 for none.
        std::vector<std::string> partners; ///< Ids of the other boxes of the radio group.
    };

    ExtendedCheckBox(irr::gui::IGUICheckBox* box, int domain, std::string defaultText, Links links);

    /// Checked when the default is a number other than 0; the groups follow.
    void setDefaults() override;
    void OnEvent(const irr::SEvent::SGUIEvent& event) override;
    /// Finds partners and groups; of two checked partners this one stays.
    void OnFinish(Elements& elements) override;
    /// UncheckMessage unchecks the box, hides and disables its groups; nothing else has an effect.
    void sendIntMessage(ExtendedGUIElement* sender, int message) override;

    bool isChecked() const { return box()->isChecked(); }
    /// Brings both groups to the state of the box.
    void applyToGroups();

private:
    irr::gui::IGUICheckBox* box() const { return static_cast<irr::gui::IGUICheckBox*>(getElement()); }

    Links links_;
    std::vector<ExtendedGUIElement*> shown_;
    std::vector<ExtendedGUIElement*> enabled_;
    std::vector<ExtendedGUIElement*> partners_;
};

} // namespace skyvane
