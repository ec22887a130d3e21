#pragma once

#include "displays/instruments/DialFactory.h"
#include "displays/map/MapTiles.h"
#include "displays/mapmath/MapSettings.h"

namespace skyvane {

/// Makes moving maps. All maps of a factory know which of them drew into a shared target last.
class Map2DFactory : public DialFactory {
public:
    explicit Map2DFactory(Context* context);

    void loadSetupFromIni(IniFile* ini, std::string section) override;
    std::unique_ptr<IPanel> Create() override;

protected:
    /// A map fills its rectangle: of the square picture a part is seen, around the aircraft.
    irr::core::rect<int> previewRect(const irr::core::rect<int>& rect) const override;

private:
    MapSettings settings_;
    std::string section_;
    TileWriters writers_;
};

} // namespace skyvane
