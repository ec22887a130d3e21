#pragma once

#include "core/ModalLoop.h"

#include <memory>
#include <string>

namespace skyvane {

class Context;
class GUI;

/// Tells how far a long work has come, and lets the pilot give it up. The work runs on the main thread in pieces and
/// calls update() between them, or on a thread of its own while the main thread repeats update().
///
///     ProgressDialog dialog(context, L"Preparing the chart");
///     while (work.doPiece()) {
///         dialog.setProgress(work.getShare());
///         if (!dialog.update())
///             return work.giveUp();
///     }
///
/// Main thread only.
class ProgressDialog {
public:
    /// `cancellable` false leaves the button out. The context runs frames already, and outlives the dialog.
    ProgressDialog(Context* context, const std::wstring& text, bool cancellable = true);
    ~ProgressDialog();
    ProgressDialog(const ProgressDialog&) = delete;
    ProgressDialog& operator=(const ProgressDialog&) = delete;

    /// What is being done.
    void setText(const std::wstring& text);
    /// The share done, brought to 0..1.
    void setProgress(double share);
    /// The line below the bar: the piece in work.
    void setState(const std::wstring& text);

    /// Runs a frame when the last one is a frame's time ago, else returns at once. False when the pilot has cancelled
    /// or the window is closed.
    bool update();
    bool isCancelled() const { return cancelled_; }

private:
    class Bar;

    void onEvent(const irr::SEvent& event);

    ModalLoop loop_;
    irr::gui::IGUIWindow* window_;
    std::unique_ptr<GUI> gui_;
    Bar* bar_;
    unsigned lastFrameMilliseconds_ = 0;
    bool cancelled_ = false;
    bool closed_ = false;
};

} // namespace skyvane
