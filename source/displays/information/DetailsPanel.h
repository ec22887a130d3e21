#pragma once

#include "displays/IPanel.h"

#include <memory>

namespace skyvane {

class DetailsView;

/// The panel that tells what the charts know of the destination, or of any element that the pilot looks up.
class DetailsPanel : public IPanel {
public:
    explicit DetailsPanel(Context* context);
    ~DetailsPanel() override;

    void OnPageChange() override;
    void OnHideGUI() override;
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent event) override;
    std::string getName() override { return "Details"; }
    void OnChartChanged() override;
    void OnProcedureChanged() override;

private:
    /// The first page with a moving map.
    void gotoMaps();

    std::unique_ptr<DetailsView> view_; ///< Made for the rectangle in which it is shown first.
    irr::core::rect<int> rect_;
};

/// The details of an element over the whole glass, the small instruments beside them, until the pilot goes back to the
/// map. A modal loop; main thread only.
void showDetailsScreen(Context& context, int id);

} // namespace skyvane
