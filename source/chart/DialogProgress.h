#pragma once

#include "terrain/tree/ITerrainProgress.h"

#include <memory>
#include <string>

namespace skyvane {

class Context;
class ProgressDialog;

/// Shows the progress of a work in a dialog that opens when the work gives itself a title, and goes with this object:
/// work that is done at once shows none. Also while the program starts, before it runs frames. Closing the window
/// cancels the work. Main thread only.
class DialogProgress final : public ITerrainProgress {
public:
    enum class Kind {
        Necessary, ///< The pilot waits for it.
        Long       ///< He may cancel it; panels show no windows of their own meanwhile, and the menu isn't there.
    };

    /// The context outlives it.
    DialogProgress(Context* context, Kind kind);
    ~DialogProgress() override;

    void setTitle(const std::string& title) override;
    void setState(const std::string& text) override;
    /// Runs a frame when one is due.
    void setProgress(double share) override;
    bool isCancelled() override { return cancelled_; }

private:
    class Frames;

    void setMenuVisible(bool visible);

    Context* context_;
    Kind kind_;
    std::unique_ptr<Frames> frames_; ///< Null while the program runs its own.
    std::unique_ptr<ProgressDialog> dialog_;
    std::string state_;
    bool presetsHidden_ = false;
    bool cancelled_ = false;
};

} // namespace skyvane
