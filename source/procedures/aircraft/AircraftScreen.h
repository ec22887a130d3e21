#pragma once

#include "gui/windows/ListScreen.h"

namespace skyvane {

class Aircraft;
class AircraftManager;

/// Chooses the current aircraft, and makes, edits and deletes profiles.
class AircraftScreen : public ListScreen {
public:
    AircraftScreen(Context& context, AircraftManager& aircrafts);

protected:
    std::vector<std::string> names() override;
    void onSelect(int index) override;
    void onNew() override;
    void onEdit(int index) override;
    void onDelete(int index) override;
    void onMore(int index) override;

private:
    void changed();

    AircraftManager& aircrafts_;
};

/// Makes, edits and deletes the checklists of an aircraft, whose place in the manager's list is given.
class CheckListScreen : public ListScreen {
public:
    CheckListScreen(Context& context, AircraftManager& aircrafts, int aircraft);

protected:
    std::vector<std::string> names() override;
    void onNew() override;
    void onEdit(int index) override;
    void onDelete(int index) override;

private:
    Aircraft& aircraft();

    AircraftManager& aircrafts_;
    int index_;
};

} // namespace skyvane
