// Documents of the home folder that the pilot's other programs, or a failing disk, may have changed: aircraft, options
// of panels, the arrangement of pages, settings saved under names.
#include "core/ini/IniFile.h"
#include "displays/gauges/PanelColor.h"
#include "displays/gauges/PanelOptions.h"
#include "displays/gauges/SegmentType.h"
#include "displays/gauges/WarningLampState.h"
#include "displays/layout/PanelArrangement.h"
#include "displays/mapmath/MapSettings.h"
#include "displays/visionmath/VisionSettings.h"
#include "gui/keys/InputColor.h"
#include "gui/layout/EditorValues.h"
#include "gui/saves/SettingsLibrary.h"
#include "procedures/aircraft/profiles/AircraftProfiles.h"
#include "sensors/SensorConfig.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <unistd.h>

using namespace skyvane;

namespace {

void readAircraft(const IniFile& document) {
    AircraftProfiles profiles;
    profiles.read(document);
    if (profiles.getCount() < 1 || !profiles.get(profiles.getCurrentIndex()))
        std::abort();
    profiles.getCurrent().findTrouble();
    AircraftProfiles again;
    again.read(profiles.write());
    if (again.getCount() != profiles.getCount() || again.getCurrentIndex() != profiles.getCurrentIndex())
        std::abort();
    profiles.remove(0);
}

void readPanel(IniFile& document, const std::string& section) {
    const MapSettings map = MapSettings::read(document, section);
    const VisionSettings vision = VisionSettings::read(document, section);
    for (const double number : {map.mapElementSize, static_cast<double>(map.maxElementDrawArea), map.planeSize,
                                vision.planeWidthMetres, vision.barRatio, vision.barSize})
        if (!(std::isfinite(number) && number >= 0.0))
            std::abort();
    const std::vector<EditorRow> rows =
        parseEditorSchema(L"color,Colour:,0\\,0\\,0\\,0,COLORRGBA;Type,Type:,a,STRING;");
    IniFile options = readPanelOptions(rows, document, section);
    writePanelOptions(rows, options, document, section);
    parseSegmentType(readValue(document, section, "Type", ""));
    parseWarningType(readValue(document, section, "Type", ""));
}

void arrange(IniFile document, bool portrait) {
    PanelArrangement pages(document, portrait);
    for (const int step : {1, 1, -1000000, 1}) {
        for (const int panel : pages.getPanels()) {
            const PanelFractions place = pages.getFractions(panel);
            if (!(place.left < place.right && place.top < place.bottom))
                std::abort();
        }
        if (!pages.getPanels().empty()) {
            pages.choose(pages.getPanels().back());
            pages.moveToTop();
            pages.moveToPage(step);
            readPanel(document, PanelArrangement::sectionOf(pages.getChosen()));
            pages.remove();
        }
        pages.turnPage(step);
    }
}

void browse(IniFile document) {
    static const std::string path = "/dev/shm/skyvane-settings-fuzz-" + std::to_string(::getpid());
    SettingsLibrary library(&document, path);
    const std::vector<SettingsLibrary::Item> items = library.list("");
    const int entries = library.count("");
    int counted = 0;
    for (const SettingsLibrary::Item& item : items) {
        if (items.size() > 20) // each look into a folder goes through all
            break;
        counted += item.isFolder ? library.count(item.name + "/") : 1;
        library.list(item.name + "/");
        if (!isGoodEntryName(item.name))
            std::abort();
    }
    if (counted != entries && items.size() <= 20)
        std::abort();
    if (!items.empty() && library.rename("", items.back(), "another") == SettingsLibrary::Outcome::Done &&
        library.count("") != entries)
        std::abort();
    ::unlink(path.c_str());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    IniFile document;
    document.setFromString(std::string(reinterpret_cast<const char*>(data), size).c_str());
    const std::string before = document.toString();
    const int sensors = countSensorSections(document), forwarders = countForwarderSections(document);
    readInputColor(document);
    if (document.toString() != before)
        std::abort();
    readAircraft(document);
    for (const bool portrait : {false, true})
        arrange(document, portrait);
    browse(document);
    removeForwarderSection(document, 0);
    if (countForwarderSections(document) != forwarders - (forwarders > 0 ? 1 : 0) ||
        countSensorSections(document) != sensors)
        std::abort();
    return 0;
}
