#include "displays/map/elements/ElementTextures.h"

#include "core/Context.h"
#include "core/engine/MipmappedTexture.h"

namespace skyvane {

const ElementSymbol& ElementTextures::get(const char* name) {
    const auto known = symbols_.find(name);
    if (known != symbols_.end())
        return known->second;
    const std::string base = std::string("map_") + name;
    return symbols_.emplace(name, ElementSymbol{load(base), load(base + "_halo")}).first->second;
}

irr::video::ITexture* ElementTextures::getPicture(const char* name) {
    const auto known = symbols_.find(name);
    if (known != symbols_.end())
        return known->second.shape;
    return symbols_.emplace(name, ElementSymbol{load(std::string("map_") + name), nullptr}).first->second.shape;
}

irr::video::ITexture* ElementTextures::load(const std::string& name) {
    return loadMipmappedTexture(context_->getIrrlichtDevice()->getVideoDriver(),
                                context_->getPath("media/" + name + ".png"));
}

} // namespace skyvane
