#include "WorldCharts.h"

#include "Bench.h"
#include "chart/elements/AirportElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/names/IndexCase.h"
#include "chart/store/ChartSetWriter.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>

namespace skyvane {
namespace {

constexpr const char* Vendor = "Bench";
constexpr const char* Area = "World";
constexpr int MadeUpAirports = 80000;

/// Words as names of places have them: syllables, of which some come far more often than others.
class Words {
public:
    std::string name() {
        std::string text = word() + " " + word();
        return chance_(random_) < 0.6 ? text + " Airport" : text + " Heliport " + word();
    }
    std::string ident() {
        std::string text;
        for (int i = 0; i < 4; ++i)
            text += static_cast<char>('A' + letter_(random_));
        return chance_(random_) < 0.4 ? text : text.substr(0, 2) + "-" + std::to_string(1000 + number_(random_));
    }
    ChartPosition place() {
        if (chance_(random_) < 0.01)
            centre_ = ChartPosition(longitude_(random_), latitude_(random_));
        return {Angle0to360(centre_.longitude + spread_(random_)),
                std::clamp(centre_.latitude + spread_(random_), -85.0, 85.0)};
    }

private:
    std::string word() {
        static const char* const syllables[] = {"ber", "lin", "san",  "ta", "fel", "den", "ka",   "ro", "mo",  "nte",
                                                "vil", "le",  "burg", "ha", "ven", "kir", "chen", "os", "tra", "lund"};
        std::string text;
        for (int i = 0; i < 3; ++i)
            text += syllables[syllable_(random_)];
        return text;
    }

    std::mt19937 random_{2026};
    std::uniform_int_distribution<int> letter_{0, 25}, number_{0, 8999}, syllable_{0, 19};
    std::uniform_real_distribution<double> chance_{0.0, 1.0}, longitude_{0.0, 360.0}, latitude_{-55.0, 70.0};
    std::normal_distribution<double> spread_{0.0, 2.0};
    ChartPosition centre_{8.0, 50.0};
};

} // namespace

WorldCharts::WorldCharts()
    : root_(std::filesystem::temp_directory_path() / ("skyvane-world-" + std::to_string(std::random_device()()))) {
    std::error_code ignored;
    std::filesystem::create_directories(root_, ignored);
    if (!compile())
        makeUp();
}

WorldCharts::~WorldCharts() {
    std::error_code ignored;
    std::filesystem::remove_all(root_, ignored);
}

bool WorldCharts::compile() const {
    const char* data = std::getenv("SKYVANE_DATA");
    if (!data || !std::filesystem::exists(std::string(data) + "/airports/airports.csv.gz"))
        return false;
    const std::string command = "'" + benchBuildFolder() + "/tools/chartmaker/chartmaker' compile --out '" +
                                root_.string() + "' --vendor " + Vendor + " --area " + Area + " --airports '" + data +
                                "/airports' >/dev/null 2>&1";
    return std::system(command.c_str()) == 0;
}

void WorldCharts::makeUp() const {
    std::filesystem::create_directories(getFolder());
    ChartSetWriter set(getFolder());
    Words words;
    for (int i = 0; i < MadeUpAirports; ++i) {
        AirportElement airport;
        airport.ident = words.ident();
        airport.name = words.name();
        airport.position = words.place();
        airport.isTowered = i % 40 == 0;
        airport.runways.resize(1);
        airport.frequencies["Tower"].push_back({118, 300});
        set.add(airport);
    }
    if (set.finish())
        SetDescription{1, Vendor, Area, std::string(Vendor) + "_" + Area}.save(root_.string() + "/World.sci");
}

std::string WorldCharts::getFolder() const {
    return root_.string() + "/" + Vendor + "_" + Area;
}

bool WorldCharts::isGood() const {
    const std::unique_ptr<ChartStore> store = makeStore();
    store->loadSets(Vendor);
    return store->getStaticElementCount() >= MadeUpAirports;
}

std::unique_ptr<ChartStore> WorldCharts::makeStore() const {
    const std::string root = root_.string() + "/";
    return std::make_unique<ChartStore>(factories_, ChartStore::Folders{root, root + "custom/"}, 100000);
}

std::vector<std::string> WorldCharts::collectNames() const {
    std::vector<std::string> names;
    const std::unique_ptr<ChartStore> store = makeStore();
    store->loadSets(Vendor);
    SubChart& set = *store->getSets().front();
    for (int i = 0; i < set.getElementCount(); ++i) {
        const std::unique_ptr<IChartElement> element = set.loadChartElement(i);
        for (int name = 0; element && name < element->getTrieInsertionNameCount(); ++name)
            names.push_back(upperCaseName(element->getTrieInsertionName(name)));
    }
    return names;
}

} // namespace skyvane
