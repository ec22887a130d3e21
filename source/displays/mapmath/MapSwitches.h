#pragma once

namespace skyvane {

/// What a moving map draws. The settings hold one set, as the pilot chose it; a preset gives the map another, the
/// effective one (see applyPreset).
struct MapSwitches {
    bool terrainEnable = true; ///< Terrain and obstacles.
    bool chartElements = true;
    bool descriptions = true; ///< Labels.
    bool succeedingProcedures = true;
    bool taxiways = true;
    bool countryborders = true;
    bool privateAirports = false;
    bool glider = false;
    bool lowObstacles = false;
    bool heliports = false;
    bool closed = false;
    bool irrelevant = false; ///< Airspaces of classes that the pilot has listed as irrelevant.
    bool marks = false;
    bool coastlines = false;
    bool airspaces = true;
    bool highways = true;
    bool railways = true;
    bool water = true;
    bool lowIFR = false;
    bool highIFR = false;
    bool airways = false;
};

} // namespace skyvane
