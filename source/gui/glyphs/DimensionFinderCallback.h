#pragma once

#include "core/geometry/EngineMath.h"
#include "gui/glyphs/ICharacterCallback.h"

namespace skyvane {

/// Keeps the furthest pen position and the lowest line of a walk.
class DimensionFinderCallback : public ICharacterCallback {
public:
    void OnCharacter(const FontCharacter& character, int index, int x, int y) override;
    void OnLineFinished(int width) override;

    int getWidth() const { return width_; }
    /// Top of the lowest line that has a glyph.
    int getLastLine() const { return lastLine_; }

private:
    int width_ = 0;
    int lastLine_ = 0;
};

} // namespace skyvane
