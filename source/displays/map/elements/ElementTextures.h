#pragma once

#include <irrlicht.h>
#include <map>
#include <string>

namespace skyvane {

class Context;

/// A symbol and what lies below it, so that it shows on every ground. The driver owns the textures.
struct ElementSymbol {
    irr::video::ITexture* shape = nullptr; ///< White, to be tinted.
    irr::video::ITexture* halo = nullptr;
};

/// The pictures of element symbols, loaded when first asked for. Main thread only.
class ElementTextures {
public:
    explicit ElementTextures(Context* context) : context_(context) {}

    /// "vor" gives media/map_vor.png and media/map_vor_halo.png.
    const ElementSymbol& get(const char* name);
    /// The one picture without a halo.
    irr::video::ITexture* getPicture(const char* name);

private:
    irr::video::ITexture* load(const std::string& name);

    Context* context_;
    std::map<std::string, ElementSymbol, std::less<>> symbols_;
};

} // namespace skyvane
