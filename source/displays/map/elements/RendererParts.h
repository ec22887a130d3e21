#pragma once

#include "displays/map/elements/ElementTextures.h"
#include "displays/map/elements/SketchPainter.h"

#include <string>
#include <vector>

namespace skyvane {

/// What the renderers of all kinds share. Main thread only.
struct RendererParts {
    explicit RendererParts(Context* owner) : context(owner), textures(owner), painter(owner) {}

    Context* context; ///< Outlives it.
    ElementTextures textures;
    SketchPainter painter;
};

/// How a symbol is coloured, and its halo.
struct SymbolColors {
    irr::video::SColor shape{0xffffffff};
    irr::video::SColor halo{0xffffffff};
};
inline const irr::video::SColor lightHalo(0xe8ffffff), darkHalo(0xd8101620);

/// A sketch that is a symbol over lines of text; empty lines are left out. Long texts shrink.
void renderPointSketch(RendererParts& parts, const irr::core::rect<int>& rect, const ElementSymbol& symbol,
                       const SymbolColors& colors, const std::vector<std::string>& lines);

} // namespace skyvane
