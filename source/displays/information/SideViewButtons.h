#pragma once

#include "core/engine/EngineRef.h"
#include "displays/informationmath/SideLayout.h"

#include <irrlicht.h>

namespace skyvane {

class Context;

/// The buttons of a side view. On a small panel they come for a moment when it is touched; "Airspaces" stays as long as
/// none are shown. Main thread only.
class SideViewButtons {
public:
    /// What they say.
    struct State {
        bool offersAirspaces = false;
        bool isAhead = false;
        bool isFullScreen = false;

        bool operator==(const State& other) const {
            return offersAirspaces == other.offersAirspaces && isAhead == other.isAhead &&
                   isFullScreen == other.isFullScreen;
        }
    };

    explicit SideViewButtons(Context* context);
    ~SideViewButtons();
    SideViewButtons(const SideViewButtons&) = delete;
    SideViewButtons& operator=(const SideViewButtons&) = delete;

    /// Each frame in which the panel shows them; `panel` on the screen.
    void show(const irr::core::rect<int>& panel, const State& state);
    void hide();
    /// The panel was touched.
    void touch();
    /// Which one an event clicked; Count for none.
    SideButton::Kind findClicked(const irr::SEvent& event) const;
    /// Around those that can be seen; empty without any.
    irr::core::rect<int> getShownRect() const;

private:
    bool isWanted(SideButton::Kind button, bool all, const State& state) const;

    Context* context_;
    std::array<EngineRef<irr::gui::IGUIButton>, SideButton::Count> buttons_;
    irr::core::rect<int> panel_;
    State state_;
    bool isShown_ = false;
    bool showsAll_ = false;
    bool wasTouched_ = false;
    unsigned touchMilliseconds_ = 0;
};

} // namespace skyvane
