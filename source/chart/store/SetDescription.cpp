#include "chart/store/SetDescription.h"

#include "core/files/Paths.h"
#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"

namespace skyvane {
namespace {

/// The one list of keys: `field(key, value)` for each, as text.
template <class Self, class Field>
void visitTexts(Self& self, Field&& field) {
    field("Vendor", self.vendor);
    field("AreaName", self.areaName);
    field("Location", self.location);
}

constexpr const char* VersionKey = "ChartVersion";

} // namespace

SetDescription SetDescription::load(const std::string& path) {
    IniFile document(path);
    SetDescription set;
    set.chartVersion = toInt(document.get("", VersionKey));
    visitTexts(set, [&document](const char* key, std::string& text) { text = document.get("", key); });
    return set;
}

bool SetDescription::save(const std::string& path) const {
    IniFile document;
    document.set("", VersionKey, toText(chartVersion));
    visitTexts(*this, [&document](const char* key, const std::string& text) { document.set("", key, text); });
    return document.Save(path);
}

std::string SetDescription::getFolder(const std::string& chartDataFolder) const {
    const bool absolute = !location.empty() && location.front() == '/';
    std::string folder = cleanPath(absolute ? location : chartDataFolder + location);
    if (folder.size() > 1 && folder.back() == '/')
        folder.pop_back();
    return folder;
}

} // namespace skyvane
