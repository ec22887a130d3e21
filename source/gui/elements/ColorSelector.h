#pragma once

#include "gui/elements/ColorWindow.h"

#include <irrlicht.h>
#include <memory>

namespace skyvane {

class Context;

/// Asks the user for a colour.
///
///     ColorSelector selector(context, color);
///     selector.select(true);
///     if (selector.lastSuccess())
///         color = selector.getColor();
///
/// Main thread only.
class ColorSelector {
public:
    /// The context outlives the selector.
    ColorSelector(Context* context, irr::video::SColor color);
    ~ColorSelector();

    /// Shows the window and comes back when the user has answered, or the program's window was closed. Sensors and
    /// drawing go on meanwhile. "Cancel" keeps the colour; without alpha the colour keeps its own.
    void select(bool withAlpha);

    irr::video::SColor getColor() const { return color_; }
    void setColor(irr::video::SColor color) { color_ = color; }
    /// Whether the last select() ended with "Ok".
    bool lastSuccess() const { return success_; }
    bool isVisible() const { return window_ != nullptr; }

private:
    void onEvent(const irr::SEvent& event);

    Context* context_;
    irr::video::SColor color_;
    std::unique_ptr<ColorWindow> window_; ///< While the user chooses.
    ColorWindow::Answer answer_ = ColorWindow::Answer::None;
    bool success_ = false;
};

} // namespace skyvane
