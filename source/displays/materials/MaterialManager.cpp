#include "displays/materials/MaterialManager.h"

#include "core/Context.h"
#include "core/log/Logger.h"
#include "displays/materials/MaterialShaders.h"
#include "displays/materials/OGLES2PlaneCB.h"
#include "displays/materials/OGLES2SimpleCB.h"
#include "displays/materials/OGLES2TerrainCB.h"
#include "displays/materials/OGLTerrain2DCB.h"

namespace skyvane {

MaterialManager::MaterialManager(Context* context) : MaterialManager(context->getIrrlichtDevice()) {}

MaterialManager::MaterialManager(irr::IrrlichtDevice* device)
    : terrain_(EngineRef<OGLES2TerrainCB>::adopt(new OGLES2TerrainCB)),
      terrain2D_(EngineRef<OGLTerrain2DCB>::adopt(new OGLTerrain2DCB)) {
    add(device, "Solid", skyvane_shader_solid_frag, false);
    add(device, "VertexAndTextureColor", skyvane_shader_vertexAndTextureColor_frag, false);
    add(device, "AlphaRef", skyvane_shader_alphaRef_frag, false);
    add(device, "VertexAlpha", skyvane_shader_vertexAlpha_frag, true);
    add(device, "TextureAlpha", skyvane_shader_textureAlpha_frag, true);
    add(device, "Alpha", skyvane_shader_alpha_frag, true);
    add(device, "Terrain2D", {skyvane_shader_terrain2D_vert, skyvane_shader_terrain2D_frag}, terrain2D_.get(), true);
    add(device, "Terrain", {skyvane_shader_terrain_vert, skyvane_shader_terrain_frag}, terrain_.get(), false);
    const auto plane = EngineRef<OGLES2PlaneCB>::adopt(new OGLES2PlaneCB);
    add(device, "Aircraft", {skyvane_shader_aircraft_vert, skyvane_shader_aircraft_frag}, plane.get(), false);
}

MaterialManager::~MaterialManager() = default;

void MaterialManager::add(irr::IrrlichtDevice* device, const char* name, const char* fragment, bool blended) {
    const auto callback = EngineRef<OGLES2SimpleCB>::adopt(new OGLES2SimpleCB(blended));
    add(device, name, {skyvane_shader_simple_vert, fragment}, callback.get(), blended);
}

void MaterialManager::add(irr::IrrlichtDevice* device, const char* name, const Shader& shader,
                          irr::video::IShaderConstantSetCallBack* callback, bool blended) {
    irr::video::IGPUProgrammingServices* services = device->getVideoDriver()->getGPUProgrammingServices();
    const irr::s32 type =
        services ? services->addHighLevelShaderMaterial(
                       shader.vertex, "main", irr::video::EVST_VS_1_1, shader.fragment, "main", irr::video::EPST_PS_1_1,
                       callback, blended ? irr::video::EMT_TRANSPARENT_ALPHA_CHANNEL : irr::video::EMT_SOLID)
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
