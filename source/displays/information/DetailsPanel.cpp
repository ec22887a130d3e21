#include "displays/information/DetailsPanel.h"

#include "core/Context.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/information/DetailsView.h"

namespace skyvane {
namespace {

const irr::video::SColor groundColor(0xff808080);
constexpr const char* mapName = "2D-Map";

} // namespace

DetailsPanel::DetailsPanel(Context* context) : IPanel(context) {}

DetailsPanel::~DetailsPanel() = default;

void DetailsPanel::OnPageChange() {
    OnHideGUI();
}

void DetailsPanel::OnHideGUI() {
    if (view_)
        view_->setVisible(false);
}

void DetailsPanel::render(irr::core::rect<int> rect) {
    if (!view_ || rect != rect_) {
        view_ = std::make_unique<DetailsView>(*context_, nullptr, rect, 0);
        rect_ = rect;
    }
    Drawer2D* drawer = context_->getDrawer();
    drawer->resetViewPort();
    drawer->drawFilledRect(rect, groundColor);
    view_->setVisible(true);
}

bool DetailsPanel::processEvent(irr::SEvent event) {
    if (view_ && view_->processEvent(event) == DetailsView::Action::Maps) {
        gotoMaps();
        return false;
    }
    return true;
}

void DetailsPanel::gotoMaps() {
    context_->getPanelManager()->showPageWith(mapName);
}

void DetailsPanel::OnChartChanged() {
    OnProcedureChanged();
}

void DetailsPanel::OnProcedureChanged() {
    if (view_)
        view_->showDestination();
}

} // namespace skyvane
