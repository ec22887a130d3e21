#include "displays/materials/MaterialManager.h"

#include "core/Context.h"
#include "core/log/Logger.h"
#include "displays/materials/MaterialShaders.h"
#include "displays/materials/OGLES2SimpleCB.h"

namespace skyvane {

MaterialManager::MaterialManager(Context* context) : MaterialManager(context->getIrrlichtDevice()) {}

MaterialManager::MaterialManager(irr::IrrlichtDevice* device) {
    add(device, "Solid", skyvane_shader_solid_frag, false);
    add(device, "VertexAndTextureColor", skyvane_shader_vertexAndTextureColor_frag, false);
    add(device, "AlphaRef", skyvane_shader_alphaRef_frag, false);
    add(device, "VertexAlpha", skyvane_shader_vertexAlpha_frag, true);
    add(device, "TextureAlpha", skyvane_shader_textureAlpha_frag, true);
    add(device, "Alpha", skyvane_shader_alpha_frag, true);
}

MaterialManager::~MaterialManager() = default;

void MaterialManager::add(irr::IrrlichtDevice* device, const char* name, const char* fragment, bool blended) {
    irr::video::IGPUProgrammingServices* services = device->getVideoDriver()->getGPUProgrammingServices();
    auto callback = EngineRef<OGLES2SimpleCB>::adopt(new OGLES2SimpleCB(blended));
    const irr::s32 type = services ? services->addHighLevelShaderMaterial(
                                         skyvane_shader_simple_vert, "main", irr::video::EVST_VS_1_1, fragment, "main",
                                         irr::video::EPST_PS_1_1, callback.get(),
                                         blended ? irr::video::EMT_TRANSPARENT_ALPHA_CHANNEL : irr::video::EMT_SOLID)
                                   : -1;
    if (type < 0)
        logText(std::string("Material \"") + name + "\" is not available: the driver refused its shader.\n");
    else
        types_[name] = static_cast<irr::video::E_MATERIAL_TYPE>(type);
}

irr::video::E_MATERIAL_TYPE MaterialManager::getMaterialType(const std::string& name) const {
    const auto found = types_.find(name);
    if (found != types_.end())
        return found->second;
    logText("Material \"" + name + "\" is unknown.\n");
    return irr::video::EMT_SOLID;
}

} // namespace skyvane
