#include "displays/mapmath/MapSettings.h"

#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/text/Numbers.h"

#include <algorithm>

namespace skyvane {
namespace {

using Switch = bool MapSwitches::*;

enum Setting : unsigned char { Off, On };

/// A switch, its key, and what the presets "glider", "vfr", "ifr" and "ifrhigh" make of it.
struct SwitchRow {
    const char* key;
    Switch member;
    Setting presets[4];
};

constexpr SwitchRow switchRows[] = {
    {"terrainEnable", &MapSwitches::terrainEnable, {On, On, On, On}},
    {"chartElements", &MapSwitches::chartElements, {On, On, On, On}},
    {"descriptions", &MapSwitches::descriptions, {On, On, On, On}},
    {"succeedingProcedures", &MapSwitches::succeedingProcedures, {On, On, On, On}},
    {"taxiways", &MapSwitches::taxiways, {On, On, On, On}},
    {"countryborders", &MapSwitches::countryborders, {On, On, On, On}},
    {"privateAirports", &MapSwitches::privateAirports, {On, Off, Off, Off}},
    {"glider", &MapSwitches::glider, {On, Off, Off, Off}},
    {"lowObstacles", &MapSwitches::lowObstacles, {Off, Off, Off, Off}},
    {"heliports", &MapSwitches::heliports, {Off, Off, Off, Off}},
    {"closed", &MapSwitches::closed, {Off, Off, Off, Off}},
    {"irrelevant", &MapSwitches::irrelevant, {Off, Off, Off, Off}},
    {"marks", &MapSwitches::marks, {Off, Off, Off, Off}},
    {"coastlines", &MapSwitches::coastlines, {Off, Off, Off, Off}},
    {"airspaces", &MapSwitches::airspaces, {On, On, Off, Off}},
    {"highways", &MapSwitches::highways, {On, On, Off, Off}},
    {"railways", &MapSwitches::railways, {On, On, Off, Off}},
    {"water", &MapSwitches::water, {On, On, Off, Off}},
    {"lowIFR", &MapSwitches::lowIFR, {Off, Off, On, Off}},
    {"highIFR", &MapSwitches::highIFR, {Off, Off, Off, On}},
    {"airways", &MapSwitches::airways, {Off, Off, On, On}},
};

constexpr const char* backdropNames[] = {"vfr", "low ifr", "high ifr", "none"};
constexpr int presetCount = 5;

/// Reads without creating the key.
class Section {
public:
    Section(IniFile& ini, const std::string& name) : ini_(ini), name_(name) {}

    std::string text(const char* key) const { return readValue(ini_, name_, key); }
    bool flag(const char* key, bool fallback) const { return toBool(text(key), fallback); }
    int number(const char* key, int fallback, int lowest, int highest) const {
        return std::clamp(toInt(text(key), fallback), lowest, highest);
    }
    double real(const char* key, double fallback, double lowest, double highest) const {
        return std::clamp(toDouble(text(key), fallback), lowest, highest);
    }

private:
    IniFile& ini_;
    const std::string& name_;
};

MapBackdrop backdropOf(const std::string& name, MapBackdrop fallback) {
    for (int i = 0; i < 4; ++i)
        if (name == backdropNames[i])
            return static_cast<MapBackdrop>(i);
    return fallback;
}

} // namespace

const char* backdropName(MapBackdrop backdrop) {
    return backdropNames[static_cast<int>(backdrop)];
}

MapSettings MapSettings::read(IniFile& ini, const std::string& name) {
    const Section section(ini, name);
    MapSettings settings;
    for (const SwitchRow& row : switchRows)
        settings.switches.*row.member = section.flag(row.key, settings.switches.*row.member);
    settings.mapElementSize = section.real("mapElementSize", settings.mapElementSize, 0.005, 1.0);
    settings.maxElementDrawArea =
        static_cast<float>(section.real("maxElementDrawArea", settings.maxElementDrawArea, 0.0, 1e9));
    settings.bgType = backdropOf(section.text("bgType"), settings.bgType);
    settings.planeSize = section.real("planeSize", settings.planeSize, 0.0, 1.0);
    settings.useRTT = section.flag("useRTT", settings.useRTT);
    settings.drawNose = section.flag("drawNose", settings.drawNose);
    settings.noseLength = section.number("noseLength", settings.noseLength, 0, 1000);
    settings.transparency = section.flag("transparency", settings.transparency);
    settings.transpval = section.number("transpval", settings.transpval, 0, 255);
    settings.trafficFilterAlt = section.number("trafficFilterAlt", settings.trafficFilterAlt, -1, 1000000);
    settings.airspacesBelow = section.number("airspacesBelow", settings.airspacesBelow, -10000, 1000000);
    return settings;
}

void MapSettings::writeOptions(IniFile& ini, const std::string& section) const {
    for (const SwitchRow& row : switchRows)
        ini.set(section, row.key, switches.*row.member ? "1" : "0");
    ini.set(section, "bgType", backdropName(bgType));
    ini.set(section, "drawNose", drawNose ? "1" : "0");
    ini.set(section, "noseLength", toText(noseLength));
    ini.set(section, "trafficFilterAlt", toText(trafficFilterAlt));
    ini.set(section, "airspacesBelow", toText(airspacesBelow));
}

MapSwitches applyPreset(const MapSwitches& user, int preset) {
    MapSwitches effective = user;
    if (preset < 1 || preset >= presetCount)
        return effective;
    for (const SwitchRow& row : switchRows)
        effective.*row.member = row.presets[preset - 1] == On;
    return effective;
}

} // namespace skyvane
