#include "displays/visionmath/VisionSettings.h"

#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "displays/gauges/PanelColor.h"

#include <algorithm>

namespace skyvane {
namespace {

enum Preset { Glider = 1, Vfr = 2, Ifr = 3, IfrHigh = 4 };

double readNumber(IniFile& ini, const std::string& section, const char* key, double standard, double least,
                  double most) {
    return std::clamp(toDouble(readValue(ini, section, key, ""), standard), least, most);
}

int readRange(IniFile& ini, const std::string& section, const char* key, int standard, int least, int most) {
    return std::clamp(toInt(readValue(ini, section, key, ""), standard), least, most);
}

bool readSwitch(IniFile& ini, const std::string& section, const char* key, bool standard) {
    return toBool(readValue(ini, section, key, ""), standard);
}

} // namespace

const VisionSwitchKey visionSwitchKeys[visionSwitchCount] = {
    {"terrain", &VisionSwitches::terrain},
    {"lowObstacles", &VisionSwitches::lowObstacles},
    {"privateAirports", &VisionSwitches::privateAirports},
    {"heliports", &VisionSwitches::heliports},
    {"closed", &VisionSwitches::closed},
    {"glider", &VisionSwitches::glider},
    {"lowIFR", &VisionSwitches::lowIFR},
    {"highIFR", &VisionSwitches::highIFR},
    {"standAlone", &VisionSwitches::standAlone},
};

bool VisionSwitches::operator==(const VisionSwitches& other) const {
    return std::all_of(std::begin(visionSwitchKeys), std::end(visionSwitchKeys),
                       [&](const VisionSwitchKey& each) { return this->*each.value == other.*each.value; });
}

VisionSwitches applyPreset(const VisionSwitches& user, int preset) {
    if (preset < Glider || preset > IfrHigh)
        return user;
    VisionSwitches effective;
    effective.privateAirports = effective.glider = preset == Glider;
    effective.lowIFR = preset == Ifr;
    effective.highIFR = preset == IfrHigh;
    return effective;
}

VisionSettings VisionSettings::read(IniFile& ini, const std::string& section) {
    VisionSettings s;
    s.planeWidthMetres = readNumber(ini, section, "planeWidth", s.planeWidthMetres, 1.0, 200.0);
    s.sightMetres = static_cast<float>(readNumber(ini, section, "Sight", s.sightMetres, 1000.0, 200000.0));
    s.useSkyBox = readSwitch(ini, section, "useSkyBox", s.useSkyBox);
    s.renderSpeedBar = readSwitch(ini, section, "renderSpeedBar", s.renderSpeedBar);
    s.renderAltBar = readSwitch(ini, section, "renderAltBar", s.renderAltBar);
    s.renderVSpeedBar = readSwitch(ini, section, "renderVSpeedBar", s.renderVSpeedBar);
    s.renderTrackBar = readSwitch(ini, section, "renderTrackBar", s.renderTrackBar);
    s.renderBank = readSwitch(ini, section, "renderBank", s.renderBank);
    s.renderTrueMagHeading = readSwitch(ini, section, trueMagneticKey, s.renderTrueMagHeading);
    s.barRatio = readNumber(ini, section, "pfdVertRatio", s.barRatio, 0.1, 2.0);
    s.barColor = readColor(ini, section, "pfdColor", s.barColor);
    s.speedRangeKnots = readRange(ini, section, "speedRange", s.speedRangeKnots, 20, 400);
    s.altitudeRangeFeet = readRange(ini, section, "altRange", s.altitudeRangeFeet, 200, 10000);
    s.verticalSpeedRangeFeet = readRange(ini, section, "vSpeedRange", s.verticalSpeedRangeFeet, 200, 10000);
    s.trackRangeDegrees = readRange(ini, section, "trackRange", s.trackRangeDegrees, 20, 180);
    s.barSize = readNumber(ini, section, "pfdSize", s.barSize, 0.05, 0.3);
    for (const VisionSwitchKey& each : visionSwitchKeys)
        s.switches.*each.value = readSwitch(ini, section, each.key, s.switches.*each.value);
    return s;
}

} // namespace skyvane
