#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "displays/MessagePause.h"
#include "displays/PanelManager.h"
#include "displays/information/DetailsPanel.h"
#include "displays/information/DetailsView.h"
#include "gui/windows/FormerFocus.h"
#include "gui/windows/WholeGlass.h"
#include "gui/windows/WindowTools.h"

#include <optional>

namespace skyvane {
namespace {

/// The window of the details, the two small instruments at its right edge.
class DetailsScreen {
public:
    DetailsScreen(Context& context, int id)
        : context_(context), focus_(environment()), glass_(environment()), pause_(*context.getPanelManager()),
          backBefore_(context.getEvents()->getBackButton()) {
        const irr::core::rect<int> screen = environment()->getRootGUIElement()->getAbsolutePosition();
        window_ = EngineRef<irr::gui::IGUIWindow>::share(environment()->addWindow(screen, true));
        window_->getCloseButton()->setVisible(false);
        window_->setDraggable(false);
        window_->setDrawTitlebar(false);
        view_ = std::make_unique<DetailsView>(context, window_.get(), screen, screen.getWidth() / 6);
        view_->show(id);
        placeInstruments(screen.getWidth() / 6);
        context.getEvents()->setBackButton(view_->getMapsButton());
        environment()->setFocus(window_.get());
    }
    ~DetailsScreen() {
        context_.getPanelManager()->setAttitudeIndicatorOverlay(false, nullptr);
        context_.getPanelManager()->setCompassOverlay(false, nullptr);
        context_.getEvents()->setBackButton(backBefore_);
        view_.reset();
        removeWindow(window_.get());
        glass_.reset();
        focus_.restore();
    }
    DetailsScreen(const DetailsScreen&) = delete;
    DetailsScreen& operator=(const DetailsScreen&) = delete;

    void run() {
        bool open = true;
        ModalLoop loop(
            *context_.getFrames(),
            {[&](const irr::SEvent& event) { open = open && view_->processEvent(event) != DetailsView::Action::Maps; },
             ModalFrame::Backdrop::Grey});
        loop.run([&] { return open; });
    }

private:
    irr::gui::IGUIEnvironment* environment() const { return context_.getIrrlichtDevice()->getGUIEnvironment(); }
    /// Side by side above the buttons, at the right edge.
    void placeInstruments(int edge) {
        const irr::core::rect<int> row = view_->getButtonRow();
        const int right = row.LowerRightCorner.X,
                  bottom = row.UpperLeftCorner.Y - context_.getRecommendedButtonHeight() / 6;
        const irr::core::rect<int> attitude(right - edge, bottom - edge, right, bottom);
        const irr::core::rect<int> compass = attitude - irr::core::vector2d<int>(edge, 0);
        context_.getPanelManager()->setAttitudeIndicatorOverlay(true, &attitude);
        context_.getPanelManager()->setCompassOverlay(true, &compass);
    }

    Context& context_;
    FormerFocus focus_;
    std::optional<WholeGlass> glass_;
    MessagePause pause_;
    irr::gui::IGUIElement* backBefore_; ///< Not owned; the event receiver looks it up before use.
    EngineRef<irr::gui::IGUIWindow> window_;
    std::unique_ptr<DetailsView> view_;
};

} // namespace

void showDetailsScreen(Context& context, int id) {
    DetailsScreen(context, id).run();
}

} // namespace skyvane
