#pragma once

#include "core/engine/EngineRef.h"

#include <array>
#include <irrlicht.h>

namespace skyvane {

class Context;

/// The buttons of a map whose view stays, in a column at its right edge. Main thread only.
class MapButtons {
public:
    enum Button { ZoomIn, ZoomOut, Info, Create, Center, Next, Options, Help, Count, None = Count };

    /// What the selection allows.
    struct State {
        bool hasSeveral = false;
        bool areProceduresPossible = false;
    };

    explicit MapButtons(Context* context);
    ~MapButtons();
    MapButtons(const MapButtons&) = delete;
    MapButtons& operator=(const MapButtons&) = delete;

    /// Each frame in which the panel shows them; `panel` on the screen.
    void show(const irr::core::rect<int>& panel, const State& state);
    void hide();
    /// Which one an event clicked.
    Button findClicked(const irr::SEvent& event) const;
    bool contains(const irr::core::vector2d<int>& screenPoint) const;

private:
    void place(const irr::core::rect<int>& panel, const State& state);

    Context* context_;
    std::array<EngineRef<irr::gui::IGUIButton>, Count> buttons_;
    irr::core::rect<int> panel_;
    bool isShown_ = false;
    bool hasSeveral_ = false;
    bool hasProcedures_ = false;
};

} // namespace skyvane
