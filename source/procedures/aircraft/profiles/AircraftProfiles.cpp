#include "procedures/aircraft/profiles/AircraftProfiles.h"

#include "core/files/StandardDocuments.h"
#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/text/Numbers.h"

#include <algorithm>

namespace skyvane {
namespace {

int numberOf(IniFile& ini, const char* key) {
    return toInt(readValue(ini, "", key));
}

std::string sectionName(int index) {
    return "A" + toText(index);
}

} // namespace

AircraftProfiles::AircraftProfiles() {
    IniFile standard;
    standard.setFromString(standardAircraftsINI);
    read(standard);
}

void AircraftProfiles::read(IniFile ini) {
    std::vector<Aircraft> found;
    int current = 0;
    const int count = std::min(numberOf(ini, "aircraftCount"), maximumAircraft);
    for (int i = 0; i < count; ++i) {
        if (!ini.isSectionAvailable(sectionName(i)))
            continue;
        if (i == numberOf(ini, "currentAircraft"))
            current = static_cast<int>(found.size());
        found.emplace_back();
        found.back().readFromIni(ini, sectionName(i));
    }
    if (found.empty())
        return;
    aircraft_ = std::move(found);
    current_ = current;
}

IniFile AircraftProfiles::write() const {
    IniFile ini;
    ini.set("", "aircraftCount", toText(getCount()));
    ini.set("", "currentAircraft", toText(current_));
    for (int i = 0; i < getCount(); ++i)
        aircraft_[static_cast<std::size_t>(i)].writeToIni(ini, sectionName(i));
    return ini;
}

Aircraft* AircraftProfiles::get(int index) {
    return index >= 0 && index < getCount() ? &aircraft_[static_cast<std::size_t>(index)] : nullptr;
}

void AircraftProfiles::setCurrent(int index) {
    if (get(index))
        current_ = index;
}

int AircraftProfiles::add(Aircraft aircraft) {
    aircraft_.push_back(std::move(aircraft));
    current_ = getCount() - 1;
    return current_;
}

bool AircraftProfiles::remove(int index) {
    if (!get(index) || getCount() == 1)
        return false;
    aircraft_.erase(aircraft_.begin() + index);
    if (index == current_)
        current_ = 0;
    else if (index < current_)
        --current_;
    return true;
}

} // namespace skyvane
