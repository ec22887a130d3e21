#pragma once

#include "displays/gauges/DialFlag.h"
#include "displays/gauges/ShortText.h"
#include "displays/shapes/Strokes.h"

#include <array>
#include <vector>

namespace skyvane {

/// A line of text whose digits have a height. The place is the middle of the digits' height, at the left, the middle or
/// the right of the text.
struct BarText {
    enum Align { Left, Centre, Right };

    ShortText text;
    ShapePoint place;
    double height = 0.0;
    uint32_t argb = 0xffffffff;
    Align align = Centre;
    double most = 0.0; ///< A longer text is made narrower; 0 for as long as it is.
    ShapeRect clip;    ///< Where it may be seen; empty for everywhere.
};

/// An image of the bars, stretched.
struct BarPicture {
    enum Kind { Band, Pointer, AngleScale, AnglePointer };
    static constexpr size_t kinds = 4;

    Kind kind;
    ShapeRect place;
    uint32_t argb;
    bool isMirrored = false; ///< Left for right.
};

/// A piece of the skin behind words, its edges as sharp at any size.
struct BarPane {
    enum Kind { Value, Title, Block };
    static constexpr size_t kinds = 3;

    Kind kind;
    ShapeRect place;
    uint32_t argb; ///< What its colours are multiplied with.
};

/// What the bars draw in one frame, as shapes, words and images in pixels of the screen; whoever draws it takes the
/// layers one after the other, in each first the images and panes, then the shapes, then the words. Keeps its memory
/// when cleared.
struct BarCanvas {
    enum Level { Ground, Scale, Box, Glass, levels };
    struct Layer {
        std::vector<BarPicture> pictures;
        std::vector<BarPane> panes;
        ShapeMesh shapes;
        std::vector<BarText> texts;
    };
    /// A bar whose value failed.
    struct Cross {
        ShapeRect place;
        const wchar_t* name;
    };

    std::array<Layer, levels> layers;
    std::vector<Cross> crosses;

    void clear() {
        for (Layer& layer : layers) {
            layer.pictures.clear();
            layer.panes.clear();
            layer.shapes.clear();
            layer.texts.clear();
        }
        crosses.clear();
    }
};

/// The colours of the bars, ARGB.
namespace BarColor {
constexpr uint32_t white = 0xfff4f7fb, grey = 0xffb9c3cf, doubtful = 0xffffe11f, failed = 0xfff01c28,
                   overspeed = 0xffff4a42;
constexpr uint32_t simulated = 0xff4fc3ff, shade = 0x78060a10, box = 0xf005070a;
constexpr uint32_t pane = 0xd8ffffff;
constexpr uint32_t bug = 0xffff40ff, track = 0xff40ff60, caution = 0xffffc31f;
constexpr uint32_t normalArc = 0xff00ff00, cautionArc = 0xffffff00, flapArc = 0xffffffff, redArc = 0xffff0000,
                   blueLine = 0xff2f8cff;
constexpr uint32_t ground = 0xff8a5a2b;

/// Of marks and digits.
constexpr uint32_t inkOf(DialFlag flag) {
    return flag == DialFlag::Doubtful ? doubtful : white;
}
} // namespace BarColor

} // namespace skyvane
