#pragma once

#include "core/engine/EngineRef.h"
#include "displays/IPanel.h"
#include "gui/windows/GUI.h"

#include <memory>

namespace skyvane {

class Aircraft;
class CheckListItems;

/// The checklists of an aircraft, ticked through by finger; makes, edits and removes them. It begins with the current
/// aircraft and follows it when another one becomes current; choosing an aircraft here changes nothing elsewhere.
///
/// The elements are made for the rectangle in which the panel is shown first.
class CheckListPanel : public IPanel {
public:
    explicit CheckListPanel(Context* context);
    ~CheckListPanel() override;

    void OnPageChange() override { OnHideGUI(); }
    void OnHideGUI() override;
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent event) override;
    std::string getName() override { return "CheckListPanel"; }

private:
    irr::gui::IGUIComboBox* box(const char* id) const { return gui_->get<irr::gui::IGUIComboBox>(id); }

    void makeGUI(const irr::core::rect<int>& rect);
    void removeGUI();
    void hideCutLabels();
    /// Aircraft or their lists were changed by whomever: shows them as they are now.
    void followAircraft();
    void fillAircraftBox(int selected);
    /// The names of the aircraft's checklists, the first one selected.
    void fillCheckListBox();
    /// The items of the selected checklist, all open.
    void fillCheckListViewBox();
    void fillBox(irr::gui::IGUIComboBox* box, const std::vector<std::string>& names) const;
    void select(int checkList);
    void onClick(const irr::SEvent& event);
    void makeCheckList();
    void editSelected();
    void removeSelected();
    void showProgress();
    Aircraft* aircraft() const;

    irr::core::rect<int> rect_;
    EngineRef<irr::gui::IGUIElement> container_;
    std::unique_ptr<GUI> gui_;
    EngineRef<CheckListItems> items_;
    unsigned revision_ = 0;   ///< Of the aircraft as they are shown.
    int currentAircraft_ = 0; ///< The program's when it was looked at last.
    int shownDone_ = -1;
};

} // namespace skyvane
