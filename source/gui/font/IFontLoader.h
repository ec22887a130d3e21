#pragma once

#include "gui/glyphs/FontDefinition.h"
#include <irrlicht.h>
#include <string>

namespace skyvane {

class FlexibleFont;

/// Makes fonts out of one kind of font file.
class IFontLoader : public virtual irr::IReferenceCounted {
public:
    using FontCharacter = skyvane::FontCharacter;

    /// The font definition with the picture of its page.
    struct Font : FontDefinition {
        irr::video::ITexture* page = nullptr; ///< Alpha channel: distance field, the edge at one half.
    };

    /// Takes a file extension without its dot, in any case of letters.
    virtual bool isALoadableFileExtension(const std::string& extension) const = 0;

    /// A new font, whose one reference is the caller's, or null after a line in the log.
    virtual FlexibleFont* loadFont(irr::io::IReadFile* file) = 0;
};

} // namespace skyvane
