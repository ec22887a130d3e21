#pragma once

#include "displays/MessagePause.h"
#include "gui/menu/MenuWindow.h"

#include <optional>
#include <string>

namespace skyvane {

class ProcedureManager;

/// The flight plan: its procedures in their order, of which the selected one is flown; the pilot adds, edits, moves and
/// deletes them, saves plans and loads them, and reads how far and how long the whole goes. Main thread only.
class FlightPlanWindow : public MenuWindow {
public:
    /// The speed that was typed before stands in the box; the text is the owner's, and keeps what is typed.
    FlightPlanWindow(Context* context, std::wstring& speed);
    ~FlightPlanWindow() override;

    void OnProcedureChanged() override;
    void updateProcedureListBox();
    void updateProcInfos();

protected:
    void onEvent(const irr::SEvent& event) override;

private:
    void onClick(const irr::SEvent& event);
    void select();
    void move(bool forwards);
    void edit();
    void deleteSelected();
    void createNew();
    void openSavedPlans();
    void enableButtons();
    void show(const char* id, const std::string& text);
    irr::gui::IGUIListBox* list() const { return static_cast<irr::gui::IGUIListBox*>(element("llist")); }

    ProcedureManager* procedures_;
    std::wstring& speed_;
    bool isChanged_ = false;            ///< The plan, while the window stands.
    std::optional<MessagePause> pause_; ///< A text can be typed here.
};

} // namespace skyvane
