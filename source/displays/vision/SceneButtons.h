#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>

namespace skyvane {

class Context;

/// The buttons that a tap on a scene brings up for a moment: "Center", "Options", "Help". Main thread only.
class SceneButtons {
public:
    enum class Button { None, Center, Options, Help };

    explicit SceneButtons(Context* context);
    ~SceneButtons();
    SceneButtons(const SceneButtons&) = delete;
    SceneButtons& operator=(const SceneButtons&) = delete;

    /// Above the lower edge of the panel, until some seconds have passed.
    void show(const irr::core::rect<int>& panel);
    void hide();
    bool isVisible() const { return visible_; }
    /// Once a frame: hides them in time.
    void update(const irr::core::rect<int>& panel);
    Button clickedBy(const irr::SEvent& event) const;

private:
    void add(int which, const wchar_t* label, const char* style);
    void place(const irr::core::rect<int>& panel);

    static constexpr int count = 3;
    Context* context_;
    EngineRef<irr::gui::IGUIElement> buttons_[count];
    bool visible_ = false;
    unsigned shownMilliseconds_ = 0;
};

} // namespace skyvane
