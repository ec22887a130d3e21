#pragma once

#include "displays/instruments/DialFlagView.h"
#include "displays/instruments/DialText.h"
#include "displays/visionmath/SceneTrust.h"

#include <array>
#include <irrlicht.h>

namespace skyvane {

class Context;
class Drawer2D;

/// Tells on the glass what of a scene can't be believed: a red cross with ATT in place of the scene, red boxes with the
/// names of other sources that failed, and that terrain is missing.
class SceneFlags {
public:
    explicit SceneFlags(Context* context);

    /// `rect` is the panel on the screen, `free` what its instruments leave of it, `corner` a place at its lower left
    /// that stays free too. `standsIn` when there is no scene, since the attitude failed.
    void draw(const irr::core::rect<int>& rect, const irr::core::rect<int>& free, const irr::core::rect<int>& corner,
              const SceneTrust& trust, bool standsIn, bool terrainIncomplete);

private:
    void drawBox(size_t which, const wchar_t* words, const irr::core::rect<int>& box, irr::video::SColor color);

    Context* context_;
    Drawer2D* drawer_;
    DialFlagView flagView_;
    std::array<DialText, 5> words_;
};

} // namespace skyvane
