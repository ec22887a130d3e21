#pragma once

#include "gui/glyphs/ICharacterCallback.h"
#include <irrlicht.h>

namespace skyvane {

/// Appends a quad for each glyph of a walk to a mesh, up to the mesh's limit.
class FillMeshBufferCharacterCallback : public ICharacterCallback {
public:
    struct Options {
        irr::video::SColor color;
        float italicGradient = 0.0f; ///< The top edge leans to the right by this times the height.
        const irr::core::matrix4* matrix = nullptr;
        bool centered = false;
        int totalWidth = 0; ///< Of the whole text, for centred lines.
    };

    FillMeshBufferCharacterCallback(irr::scene::SMeshBuffer& mesh, const Options& options);

    void OnCharacter(const FontCharacter& character, int index, int x, int y) override;
    void OnLineFinished(int width) override;

private:
    void addVertex(float x, float y, float u, float v);

    irr::scene::SMeshBuffer& mesh_;
    Options options_;
    irr::u32 lineStart_; ///< First vertex of the current line.
};

} // namespace skyvane
