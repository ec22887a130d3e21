#include "displays/vision/Map3DFactory.h"

#include "displays/vision/Map3D.h"
#include "displays/vision/VisionDocuments.h"

namespace skyvane {

Map3DFactory::Map3DFactory(Context* context)
    : DialFactory(context, "3D-Map", "media/map3d_preview.png", visionSchema, "Map3DOptions.hti") {}

void Map3DFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    settings_ = VisionSettings::read(*ini, section);
    section_ = std::move(section);
}

std::unique_ptr<IPanel> Map3DFactory::Create() {
    return make<Map3D>(settings_, section_);
}

} // namespace skyvane
