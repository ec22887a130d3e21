#pragma once

#include "displays/layout/MessageBox.h"

#include <functional>
#include <irrlicht.h>
#include <optional>
#include <string>

namespace skyvane {

class ICommonAppContext;

/// The message box on the screen: text wrapped and measured in the skin's font, drawn through Drawer2D, and its
/// rectangle kept away from the GUI's mouse. Wraps again only when text, place or font have changed. Main thread only.
class MessageBoxView {
public:
    /// Is told the rectangle that keeps the mouse from the GUI, null when there is none any more.
    using SetNoMouseBox = std::function<void(const irr::core::rect<int>*)>;

    MessageBoxView(ICommonAppContext* app, SetNoMouseBox setNoMouseBox);
    ~MessageBoxView();
    MessageBoxView(const MessageBoxView&) = delete;
    MessageBoxView& operator=(const MessageBoxView&) = delete;

    /// An empty text does nothing. `enabled` false shows nothing and leaves the mouse alone.
    void show(const std::string& text, MessageBox::Colors colors, int durationMilliseconds, bool close,
              const MessageSpace& space, bool enabled);
    void hide();
    /// The font or its scale has changed: measure again.
    void forgetLayout() { text_.clear(); }

    /// Draws the box; where it is seen, the mouse is its own.
    void render();
    /// For frames that don't draw it: what lies beneath has the mouse again.
    void letMousePass() { keepMouse(nullptr); }
    MessageBox::Answer processMouse(const irr::SEvent::SMouseInput& mouse);
    bool isVisible() const { return box_.isVisible(); }

private:
    void layOut(const std::string& text, bool close, const MessageSpace& space);
    irr::gui::IGUIFont* skinFont() const;
    void keepMouse(const irr::core::rect<int>* box);

    ICommonAppContext* app_;
    SetNoMouseBox setNoMouseBox_;
    MessageBox box_;
    std::string text_;
    irr::core::stringw wrapped_;
    irr::core::stringw closeLabel_;
    irr::core::dimension2d<irr::u32> textSize_;
    MessageRects rects_;
    bool close_ = false;
    std::optional<irr::core::rect<int>> kept_; ///< What was told last.
};

} // namespace skyvane
