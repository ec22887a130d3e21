#pragma once

#include <cstdint>
#include <string>

namespace skyvane {

class IniFile;

/// Which chart elements a scene shows.
struct VisionSwitches {
    bool terrain = true; ///< And obstacles.
    bool lowObstacles = false;
    bool privateAirports = false;
    bool heliports = false;
    bool lowIFR = true;
    bool highIFR = false;
    bool standAlone = false;
    bool glider = false;
    bool closed = false;

    bool operator==(const VisionSwitches& other) const;
};

/// What the switches are under a preset (the numbers of IPanel::OptimizedSettings); those of the user for the default
/// one and for numbers that are none.
VisionSwitches applyPreset(const VisionSwitches& user, int preset);

/// A switch of the options: its key in the section, and where it stands.
struct VisionSwitchKey {
    const char* key;
    bool VisionSwitches::*value;
};
constexpr int visionSwitchCount = 9;
extern const VisionSwitchKey visionSwitchKeys[visionSwitchCount];

/// The options of a synthetic vision panel, as its section of the layout holds them.
struct VisionSettings {
    static constexpr const char* trueMagneticKey = "renderTrueMagHeading";

    double planeWidthMetres = 20.0;
    float sightMetres = 25000.0f;
    bool useSkyBox = true;
    bool renderSpeedBar = true;
    bool renderAltBar = true;
    bool renderVSpeedBar = true;
    bool renderTrackBar = true;
    bool renderBank = true;
    bool renderTrueMagHeading = false;
    double barRatio = 0.3;          ///< Width to height of the vertical bars.
    uint32_t barColor = 0xff808080; ///< ARGB
    int speedRangeKnots = 40;
    int altitudeRangeFeet = 400;
    int verticalSpeedRangeFeet = 400;
    int trackRangeDegrees = 40;
    double barSize = 0.142857143; ///< Width of a bar in parts of the panel's.
    VisionSwitches switches;

    /// Keys that are missing or wrong keep their defaults, numbers are brought into ranges that can be drawn.
    static VisionSettings read(IniFile& ini, const std::string& section);
};

} // namespace skyvane
