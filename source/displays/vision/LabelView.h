#pragma once

#include "displays/shapes/ShapeMesh.h"
#include "displays/shapes/Strokes.h"
#include "displays/visionmath/LabelPicker.h"
#include "gui/font/CachedText.h"

#include <array>
#include <irrlicht.h>

namespace skyvane {

class Context;
class ElementScene;
class SceneStage;
struct ChartPosition;
struct SceneLabel;

/// Draws the labels of a scene's elements that fit: each on a pole over its place. Main thread only.
class LabelView {
public:
    static constexpr size_t mostShown = 14;

    explicit LabelView(Context* context) : context_(context) {}
    /// Both rectangles on the screen; labels stay inside `free`.
    void draw(const SceneStage& stage, const ElementScene& elements, const ChartPosition& aircraft,
              const irr::core::rect<int>& panel, const irr::core::rect<int>& free);

private:
    struct Slot {
        int id = 0;
        bool used = false;
        CachedText text;
    };
    /// A label on the glass: its foot and its box, of the panel.
    struct Shown {
        const SceneLabel* label = nullptr;
        ShapePoint foot;
    };

    void queue(const SceneStage& stage, const ElementScene& elements, const ChartPosition& aircraft, int height);
    Slot& slotOf(int id);

    Context* context_;
    LabelPicker picker_;
    std::vector<Shown> shown_; ///< By their place in the picker's ids.
    std::array<Slot, mostShown> slots_;
    ShapeMesh shapes_;
    ShapePath pole_;
};

} // namespace skyvane
