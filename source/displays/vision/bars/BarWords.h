#pragma once

#include "core/engine/EngineRef.h"
#include "displays/visionmath/bars/BarCanvas.h"

#include <irrlicht.h>
#include <vector>

namespace skyvane {

class Context;
class FlexibleFont;

/// Draws the words of a canvas: all texts of one height in one call. The mesh is written anew in each frame, into
/// memory that it keeps. Main thread only.
class BarWords {
public:
    explicit BarWords(Context* context);
    ~BarWords();
    void draw(const std::vector<BarText>& texts);
    /// In pixels, for digits of that height.
    double measure(const ShortText& text, double height);

private:
    /// How the digits of a font lie, pixels at scale 1.
    struct Metrics {
        float top = 0.0f;
        float height = 1.0f;
    };

    FlexibleFont* takeFont();
    void measureDigits(const FlexibleFont& font);
    void drawHeight(FlexibleFont& font, const std::vector<BarText>& texts, double height);
    void add(const FlexibleFont& font, const BarText& text, float scale);
    void clip(irr::u32 firstVertex, const irr::core::rect<float>& clip);

    Context* context_;
    EngineRef<FlexibleFont> font_;
    EngineRef<irr::scene::SMeshBuffer> mesh_;
    Metrics digits_;
    std::vector<double> drawn_; ///< Heights of the frame that are done.
};

} // namespace skyvane
