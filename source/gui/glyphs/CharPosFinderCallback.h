#pragma once

#include "gui/glyphs/ICharacterCallback.h"

namespace skyvane {

/// Finds the index before the first glyph whose pen position lies right of a place.
class CharPosFinderCallback : public ICharacterCallback {
public:
    explicit CharPosFinderCallback(float x) : searchedX_(x) {}
    void OnCharacter(const FontCharacter& character, int index, int x, int y) override;
    void OnLineFinished(int) override {}

    /// -1 when no glyph does.
    int getIndex() const { return index_; }

private:
    float searchedX_;
    int index_ = -1;
    bool found_ = false;
};

} // namespace skyvane
