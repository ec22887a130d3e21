#include "chart/DialogProgress.h"

#include "core/Context.h"
#include "core/events/EventReceiver.h"
#include "core/system/StartFrames.h"
#include "core/text/Utf8.h"
#include "displays/PanelManager.h"
#include "gui/menu/Menu.h"
#include "gui/windows/ProgressDialog.h"

namespace skyvane {

/// The context's frames while it has none yet; its events come back to it.
class DialogProgress::Frames {
public:
    explicit Frames(Context* context) : context_(context), frames_(std::make_unique<StartFrames>(*context)) {
        context_->setFrames(frames_.get());
    }
    ~Frames() {
        context_->setFrames(nullptr);
        frames_.reset();
        context_->getIrrlichtDevice()->setEventReceiver(context_->getEvents());
    }

private:
    Context* context_;
    std::unique_ptr<StartFrames> frames_;
};

DialogProgress::DialogProgress(Context* context, Kind kind) : context_(context), kind_(kind) {}

DialogProgress::~DialogProgress() {
    const bool wasOpen = dialog_ != nullptr;
    dialog_.reset();
    if (wasOpen && kind_ == Kind::Long)
        setMenuVisible(true);
}

void DialogProgress::setTitle(const std::string& title) {
    const std::wstring text = decodeUtf8(title);
    if (dialog_) {
        dialog_->setText(text);
        return;
    }
    if (!context_->getFrames())
        frames_ = std::make_unique<Frames>(context_);
    if (kind_ == Kind::Long) {
        context_->getPanelManager()->hideAllPanelGUI();
        setMenuVisible(false);
    }
    dialog_ = std::make_unique<ProgressDialog>(context_, text, kind_ == Kind::Long);
    dialog_->setState(decodeUtf8(state_));
}

/// The question for presets that a start may ask is asked again afterwards.
void DialogProgress::setMenuVisible(bool visible) {
    Menu* menu = context_->getPanelManager()->getMenu();
    if (!menu)
        return;
    if (!visible)
        presetsHidden_ = menu->isShowingOptimizedSettings();
    menu->setVisible(visible);
    if (visible && presetsHidden_)
        menu->forceShowOptimizedSettings(true);
}

void DialogProgress::setState(const std::string& text) {
    state_ = text;
    if (dialog_)
        dialog_->setState(decodeUtf8(text));
}

void DialogProgress::setProgress(double share) {
    if (!dialog_ || cancelled_)
        return;
    dialog_->setProgress(share);
    cancelled_ = !dialog_->update();
}

} // namespace skyvane
