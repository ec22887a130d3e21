#pragma once

#include <functional>
#include <irrlicht.h>

namespace skyvane {

class Context;

/// A framed picture within a window that its owner draws in each frame. The parent holds it; main thread only.
class PreviewPane : public irr::gui::IGUIElement {
public:
    /// Draws into the rectangle, in pixels of the screen.
    using Paint = std::function<void(const irr::core::rect<int>&)>;

    /// Into the parent, at a place within it. What the function refers to outlives the parent, which holds the pane.
    static irr::gui::IGUIElement* add(Context& context, irr::gui::IGUIElement* parent,
                                      const irr::core::rect<int>& place, Paint paint);

    void draw() override;

private:
    PreviewPane(Context& context, irr::gui::IGUIElement* parent, const irr::core::rect<int>& place, Paint paint);

    Context& context_;
    Paint paint_;
};

} // namespace skyvane
