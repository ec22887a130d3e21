#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>
#include <map>
#include <string>

namespace skyvane {

class Context;
class OGLES2TerrainCB;
class OGLTerrain2DCB;

/// The program's own material types, by name. The 2-D ones are here: "Solid", "VertexAlpha", "TextureAlpha", "Alpha",
/// "AlphaRef", "VertexAndTextureColor"; those of scenes are "Terrain" and "Aircraft",
/// and "Terrain2D" is the ground below the map. Main thread only.
///
/// | Name                  | Colour                            | Alpha                                     |
/// |-----------------------|-----------------------------------|-------------------------------------------|
/// | Solid                 | texture times the diffuse colour  | opaque                                    |
/// | VertexAndTextureColor | texture times the vertex's        | opaque                                    |
/// | VertexAlpha           | texture times the vertex's        | the vertex's                              |
/// | TextureAlpha          | texture times the diffuse colour  | the texture's                             |
/// | Alpha                 | texture times the vertex's        | the product of both                       |
/// | AlphaRef              | texture times the vertex's        | opaque where the product is at least half |
/// | Terrain               | by the height, see the callback   | opaque                                    |
/// | Aircraft              | texture, vertex, diffuse and light| opaque                                    |
///
/// A material of a blended type needs BlendOperation EBO_ADD: without, the engine loses blending after a 2-D draw of
/// its own. Blended colours leave the right alpha in a render target.
class MaterialManager {
public:
    explicit MaterialManager(Context* context);
    explicit MaterialManager(irr::IrrlichtDevice* device);
    ~MaterialManager();

    /// EMT_SOLID for an unknown name or where the driver refused the shader, with a line in the log.
    irr::video::E_MATERIAL_TYPE getMaterialType(const std::string& name) const;
    /// What "Terrain" is drawn with. Never null.
    OGLES2TerrainCB* getTerrainCallback() const { return terrain_.get(); }
    /// What "Terrain2D" is drawn with. Never null.
    OGLTerrain2DCB* getTerrain2DCallback() const { return terrain2D_.get(); }

private:
    struct Shader {
        const char* vertex;
        const char* fragment;
    };
    void add(irr::IrrlichtDevice* device, const char* name, const char* fragment, bool blended);
    void add(irr::IrrlichtDevice* device, const char* name, const Shader& shader,
             irr::video::IShaderConstantSetCallBack* callback, bool blended);

    EngineRef<OGLES2TerrainCB> terrain_;
    EngineRef<OGLTerrain2DCB> terrain2D_;
    std::map<std::string, irr::video::E_MATERIAL_TYPE> types_;
};

} // namespace skyvane
