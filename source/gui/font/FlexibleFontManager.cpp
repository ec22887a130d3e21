#include "gui/font/FlexibleFontManager.h"

#include "core/log/Logger.h"
#include "gui/font/FlexibleFont.h"
#include "gui/font/SDFFWithShadowsCallback.h"
#include <algorithm>

extern "C" const char skyvane_sdff_vertex_shader[];
extern "C" const char skyvane_sdff_fragment_shader[];

namespace skyvane {

using irr::video::E_MATERIAL_TYPE;

namespace {

constexpr E_MATERIAL_TYPE materialWithoutShaders = irr::video::EMT_TRANSPARENT_ALPHA_CHANNEL;

std::string extensionOf(const std::string& path) {
    const size_t dot = path.find_last_of("./\\");
    return dot == std::string::npos || path[dot] != '.' ? std::string() : path.substr(dot + 1);
}

} // namespace

FlexibleFontManager::FlexibleFontManager(irr::IrrlichtDevice* device)
    : device_(device), plainType_(addMaterial("", std::make_unique<SDFFCallback>(*this))),
      shadowType_(addMaterial("#define SHADOWS\n", std::make_unique<SDFFWithShadowsCallback>(*this))) {}

FlexibleFontManager::~FlexibleFontManager() = default;

E_MATERIAL_TYPE FlexibleFontManager::addMaterial(const char* defines, std::unique_ptr<SDFFCallback> callback) {
    irr::video::IGPUProgrammingServices* shaders = device_->getVideoDriver()->getGPUProgrammingServices();
    const std::string vertex = std::string(defines) + skyvane_sdff_vertex_shader;
    const std::string fragment = std::string(defines) + skyvane_sdff_fragment_shader;
    const int type = shaders ? shaders->addHighLevelShaderMaterial(vertex.c_str(), "main", irr::video::EVST_VS_1_1,
                                                                   fragment.c_str(), "main", irr::video::EPST_PS_1_1,
                                                                   this, irr::video::EMT_TRANSPARENT_ALPHA_CHANNEL)
                             : -1;
    if (type < 0) {
        logText("No shaders for fonts, text will be blurred\n");
        return materialWithoutShaders;
    }
    callbacks_[type] = std::move(callback);
    return static_cast<E_MATERIAL_TYPE>(type);
}

FlexibleFont* FlexibleFontManager::getFont(const std::string& path) {
    const auto known = fonts_.find(path);
    if (known != fonts_.end())
        return known->second.get();
    EngineRef<FlexibleFont> font = load(path);
    return font ? (fonts_[path] = font).get() : nullptr;
}

EngineRef<FlexibleFont> FlexibleFontManager::load(const std::string& path) const {
    const std::string extension = extensionOf(path);
    for (const EngineRef<IFontLoader>& loader : loaders_) {
        if (!loader->isALoadableFileExtension(extension))
            continue;
        const auto file =
            EngineRef<irr::io::IReadFile>::adopt(device_->getFileSystem()->createAndOpenFile(path.c_str()));
        if (!file) {
            logText("Can't open font " + path + "\n");
            return {};
        }
        auto font = EngineRef<FlexibleFont>::adopt(loader->loadFont(file.get()));
        if (font)
            return font;
    }
    return {};
}

void FlexibleFontManager::removeFont(FlexibleFont* font) {
    const auto found =
        std::find_if(fonts_.begin(), fonts_.end(), [font](const auto& entry) { return entry.second.get() == font; });
    if (found != fonts_.end())
        fonts_.erase(found);
}

void FlexibleFontManager::addFontLoader(IFontLoader* loader) {
    if (loader)
        loaders_.push_back(EngineRef<IFontLoader>::share(loader));
}

void FlexibleFontManager::prepareDraw() const {
    if (beforeDraw_)
        beforeDraw_();
}

void FlexibleFontManager::OnSetMaterial(const irr::video::SMaterial& material) {
    const auto found = callbacks_.find(material.MaterialType);
    current_ = found == callbacks_.end() ? nullptr : found->second.get();
}

void FlexibleFontManager::OnSetConstants(irr::video::IMaterialRendererServices* services, irr::s32) {
    if (current_)
        current_->OnSetConstants(services);
}

} // namespace skyvane
