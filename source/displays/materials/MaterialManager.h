#pragma once

#include <irrlicht.h>
#include <map>
#include <string>

namespace skyvane {

class Context;

/// The program's own material types, by name. The 2-D ones are here: "Solid", "VertexAlpha", "TextureAlpha", "Alpha",
/// "AlphaRef", "VertexAndTextureColor"; those of terrain and aircraft join with their displays. Main thread only.
class MaterialManager {
public:
    explicit MaterialManager(Context* context);
    ~MaterialManager();

    /// EMT_SOLID for an unknown name or where the driver refused the shader, with a line in the log.
    irr::video::E_MATERIAL_TYPE getMaterialType(const std::string& name) const;

private:
    void add(irr::IrrlichtDevice* device, const std::string& name, const char* vertex, const char* fragment,
             irr::video::E_MATERIAL_TYPE base);

    std::map<std::string, irr::video::E_MATERIAL_TYPE> types_;
};

} // namespace skyvane
