#pragma once

#include "displays/MessagePause.h"
#include "gui/menu/MenuWindow.h"

#include <optional>

namespace skyvane {

class SearchBoxHandler;
class SensorManager;
struct ChartPosition;

/// Puts the aircraft anywhere, to plan and to learn: at an element of the charts, with a heading and an altitude. Until
/// the simulation is stopped every display shows that place, marked as simulated. Main thread only.
class PositionSimulator : public MenuWindow {
public:
    explicit PositionSimulator(Context* context);
    ~PositionSimulator() override;

    void update() override;

protected:
    void onEvent(const irr::SEvent& event) override;

private:
    void startOrStop();
    void start();
    /// Nothing when no element is selected.
    std::optional<ChartPosition> selectedPosition() const;
    /// A whole number between limits; nothing for anything else.
    std::optional<int> number(const char* id, int least, int most) const;

    SensorManager* sensors_;
    SearchBoxHandler* search_;
    std::optional<MessagePause> pause_; ///< A name is typed here.
};

} // namespace skyvane
