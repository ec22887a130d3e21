#include "procedures/aircraft/profiles/Aircraft.h"

#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/ini/SeparatedString.h"
#include "core/text/Numbers.h"

#include <algorithm>

namespace skyvane {
namespace {

struct SpeedKey {
    const char* key;
    int Aircraft::*speed;
};

constexpr SpeedKey speedKeys[] = {{"Vso", &Aircraft::Vso}, {"Vs", &Aircraft::Vs},   {"Vfe", &Aircraft::Vfe},
                                  {"Vno", &Aircraft::Vno}, {"Vne", &Aircraft::Vne}, {"Vsse", &Aircraft::Vsse},
                                  {"Vbe", &Aircraft::Vbe}, {"Vbg", &Aircraft::Vbg}};

/// Speeds of which the first is never above the second.
constexpr SpeedKey ascending[][2] = {
    {{"Vso", &Aircraft::Vso}, {"Vs", &Aircraft::Vs}},   {{"Vs", &Aircraft::Vs}, {"Vno", &Aircraft::Vno}},
    {{"Vno", &Aircraft::Vno}, {"Vne", &Aircraft::Vne}}, {{"Vso", &Aircraft::Vso}, {"Vfe", &Aircraft::Vfe}},
    {{"Vfe", &Aircraft::Vfe}, {"Vne", &Aircraft::Vne}}, {{"Vsse", &Aircraft::Vsse}, {"Vne", &Aircraft::Vne}},
    {{"Vbe", &Aircraft::Vbe}, {"Vne", &Aircraft::Vne}}, {{"Vbg", &Aircraft::Vbg}, {"Vne", &Aircraft::Vne}}};

std::string joined(const std::list<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += (text.empty() ? "" : "|") + line;
    return text;
}

} // namespace

void Aircraft::readFromIni(IniFile& ini, const std::string& section) {
    name = readValue(ini, section, "Name");
    for (const SpeedKey& each : speedKeys)
        this->*each.speed = std::max(toInt(readValue(ini, section, each.key), none), none);
    const double ratio = toDouble(readValue(ini, section, "inverseGlideRatio"), -1.0);
    inverseGlideRatio = ratio < 0.0 ? -1.0 : ratio;
    checklists.clear();
    const int count = std::min(toInt(readValue(ini, section, "ListCount")), maximumCheckLists);
    for (int i = 0; i < count; ++i) {
        const std::string key = "L" + toText(i);
        if (!ini.isAvailable(section, key) && !ini.isAvailable(section, key + ".Name"))
            continue;
        const auto lines = parseSeperatedString(readValue(ini, section, key), '|');
        checklists.push_back({readValue(ini, section, key + ".Name"), {lines.begin(), lines.end()}});
    }
}

void Aircraft::writeToIni(IniFile& ini, const std::string& section) const {
    ini.removeSection(section);
    ini.set(section, "Name", name);
    for (const SpeedKey& each : speedKeys)
        ini.set(section, each.key, toText(this->*each.speed));
    ini.set(section, "inverseGlideRatio", toText(inverseGlideRatio));
    ini.set(section, "ListCount", toText(getCheckListCount()));
    for (int i = 0; i < getCheckListCount(); ++i) {
        const CheckList& list = checklists[static_cast<std::size_t>(i)];
        ini.set(section, "L" + toText(i), joined(list.lines));
        ini.set(section, "L" + toText(i) + ".Name", list.name);
    }
}

CheckList* Aircraft::getCheckList(int index) {
    return index >= 0 && index < getCheckListCount() ? &checklists[static_cast<std::size_t>(index)] : nullptr;
}

int Aircraft::createCheckList() {
    checklists.emplace_back();
    return getCheckListCount() - 1;
}

void Aircraft::removeCheckList(int index) {
    if (getCheckList(index))
        checklists.erase(checklists.begin() + index);
}

std::string Aircraft::findTrouble() const {
    for (const SpeedKey& each : speedKeys)
        if (this->*each.speed > largestSpeed)
            return std::string(each.key) + " is above " + toText(largestSpeed) + " knots.";
    for (const auto& [low, high] : ascending)
        if (this->*high.speed >= 0 && this->*low.speed > this->*high.speed)
            return std::string(low.key) + " is above " + high.key + ".";
    return {};
}

} // namespace skyvane
