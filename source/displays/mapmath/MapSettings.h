#pragma once

#include "displays/mapmath/MapSwitches.h"

#include <string>

namespace skyvane {

class IniFile;

/// What stands at the back of the chart elements. The first three are the types of an IArea's backgrounds.
enum class MapBackdrop { Vfr = 0, LowIfr = 1, HighIfr = 2, None = 3 };

/// The settings of a moving map, as a section of the configuration document holds them.
struct MapSettings {
    MapSwitches switches;
    double mapElementSize = 0.05; ///< Of symbols, a share of the screen.
    float maxElementDrawArea = 10000.0f;
    MapBackdrop bgType = MapBackdrop::None;
    double planeSize = 0.09;
    bool useRTT = true;
    bool drawNose = true;
    int noseLength = 20; ///< Nautical miles or kilometres.
    bool transparency = false;
    int transpval = 128;       ///< 0 to 255.
    int trafficFilterAlt = 0;  ///< Feet; 0 or less shows all traffic.
    int airspacesBelow = 9999; ///< Feet.

    /// What a section lacks keeps its default; values that no map can use are limited.
    static MapSettings read(IniFile& ini, const std::string& section);
    /// What the pilot changes on the running map; the rest of the section stays.
    void writeOptions(IniFile& ini, const std::string& section) const;
};

/// The names of backdrops in documents.
const char* backdropName(MapBackdrop backdrop);

/// What a preset, 0 "default" to 4 "ifrhigh", makes of the pilot's switches. Other numbers leave them.
MapSwitches applyPreset(const MapSwitches& user, int preset);

} // namespace skyvane
