#include "displays/map/Map2DFactory.h"

#include "core/ini/IniFile.h"
#include "displays/map/Map2D.h"
#include "displays/map/MapDocuments.h"

namespace skyvane {

Map2DFactory::Map2DFactory(Context* context) : DialFactory(context, "2D-Map", "media/map_preview.png", map2DOptions) {}

void Map2DFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    settings_ = MapSettings::read(*ini, section);
    section_ = std::move(section);
}

std::unique_ptr<IPanel> Map2DFactory::Create() {
    auto panel = std::make_unique<Map2D>(context(), settings_, section_, writers_);
    panel->setFactory(this);
    return panel;
}

} // namespace skyvane
