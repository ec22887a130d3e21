#include "chart/elements/AirportElement.h"

#include "chart/elements/ChartElementForms.h"
#include "chart/elements/HypertextPage.h"
#include "chart/elements/NameWords.h"
#include "chart/elements/RunwayForms.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/names/IndexCase.h"

#include <algorithm>
#include <set>

namespace skyvane {

namespace {

constexpr double sameHeliportMetres = 100.0;
constexpr double sameAirportMetres = 3000.0;
constexpr double sameNamelessAirportMetres = 1500.0;
constexpr size_t leastFrequencyEntryBytes = 8;
constexpr size_t frequencyBytes = 8;

void recordFrequencies(FrequencyMap& map, RecordReader& form) {
    const size_t entries = form.count(leastFrequencyEntryBytes);
    for (size_t i = 0; i < entries && !form.fail(); ++i) {
        std::string name;
        form.text(name);
        std::vector<Frequency>& list = map[name];
        for (size_t left = form.count(frequencyBytes); left > 0; --left) {
            list.emplace_back();
            form.number(list.back().megahertz);
            form.number(list.back().kilohertz);
        }
    }
}

void recordFrequencies(const FrequencyMap& map, RecordWriter& form) {
    form.count(map.size());
    for (const auto& [name, list] : map) {
        form.text(name);
        form.count(list.size());
        for (const Frequency& frequency : list) {
            form.number(frequency.megahertz);
            form.number(frequency.kilohertz);
        }
    }
}

void documentFrequencies(FrequencyMap& map, IniReader& form) {
    const size_t entries = form.count("FreqCnt", [&](size_t i) { return form.hasSection("Freq" + std::to_string(i)); });
    for (size_t i = 0; i < entries; ++i) {
        IniReader section = form.in("Freq" + std::to_string(i));
        std::string name;
        section.text("Name", name);
        std::vector<Frequency>& list = map[name];
        const size_t count = section.count("Count", [&](size_t j) {
            return section.has("MHZ" + std::to_string(j)) || section.has("KHZ" + std::to_string(j));
        });
        for (size_t j = 0; j < count; ++j) {
            list.emplace_back();
            section.number("MHZ" + std::to_string(j), list.back().megahertz);
            section.number("KHZ" + std::to_string(j), list.back().kilohertz);
        }
    }
}

void documentFrequencies(const FrequencyMap& map, IniWriter& form) {
    form.removeSections("Freq");
    form.number("FreqCnt", static_cast<uint32_t>(map.size()));
    size_t i = 0;
    for (const auto& [name, list] : map) {
        IniWriter section = form.in("Freq" + std::to_string(i++));
        section.text("Name", name);
        section.number("Count", static_cast<uint32_t>(list.size()));
        for (size_t j = 0; j < list.size(); ++j) {
            section.number("MHZ" + std::to_string(j), list[j].megahertz);
            section.number("KHZ" + std::to_string(j), list[j].kilohertz);
        }
    }
}

template <class Runways, class Form>
void documentRunways(Runways& runways, Form& form) {
    if constexpr (Form::Reads)
        runways.resize(form.count("RunCnt", [&](size_t i) { return form.hasSection("Run" + std::to_string(i)); }));
    else {
        form.removeSections("Run");
        form.number("RunCnt", static_cast<uint32_t>(runways.size()));
    }
    for (size_t i = 0; i < runways.size(); ++i) {
        Form section = form.in("Run" + std::to_string(i));
        Runway::document(runways[i], section);
    }
}

} // namespace

template <class Self, class Form>
void AirportElement::record(Self& self, Form& form) {
    form.latitudeFirst(self.position);
    form.text(self.remarks);
    form.objects(self.runways, Runway::LeastRecordBytes);
    form.number(self.elevationFeet);
    form.text(self.ident);
    form.text(self.name);
    form.text(self.fuel);
    recordFrequencies(self.frequencies, form);
    form.flag(self.isClosed);
    form.flag(self.isHeliport);
    form.flag(self.isPrivate);
    form.flag(self.hasGliders);
    form.flag(self.isTowered);
    form.flag(self.isMilitary);
    form.number(self.trafficPatternFeet);
    form.number(self.accuracy);
}

template <class Self, class Form>
void AirportElement::document(Self& self, Form& form) {
    form.position(self.position);
    form.text("Rem", self.remarks);
    documentRunways(self.runways, form);
    form.number("Ele", self.elevationFeet);
    form.text("Ident", self.ident);
    form.text("Name", self.name);
    form.text("Fuel", self.fuel);
    documentFrequencies(self.frequencies, form);
    form.flag("Clsd", self.isClosed);
    form.flag("Heli", self.isHeliport);
    form.flag("Prv", self.isPrivate);
    form.flag("Gldr", self.hasGliders);
    form.flag("Towered", self.isTowered);
    form.flag("Military", self.isMilitary);
    form.number("TPAlt", self.trafficPatternFeet);
    form.number("Accuracy", self.accuracy);
}

template class ChartElement<AirportElement, IChartElement::AIRPORT>;

void AirportElement::derive() {
    sketch_ = std::make_unique<AirportSketch>(*this);
}

void AirportElement::merge(const IChartElement* other) {
    const AirportElement* airport = sameKind(other);
    if (!airport)
        return;
    if (elevationFeet == UnknownElevation)
        elevationFeet = airport->elevationFeet;
    if (accuracy == 0)
        accuracy = airport->accuracy;
    appendRemarks(remarks, airport->remarks);
    if (name.empty())
        name = airport->name;
    if (fuel.empty())
        fuel = airport->fuel;
    for (const auto& [service, list] : airport->frequencies) {
        std::vector<Frequency>& own = frequencies[service];
        for (const Frequency& frequency : list)
            if (std::find(own.begin(), own.end(), frequency) == own.end())
                own.push_back(frequency);
    }
}

bool AirportElement::equals(const IChartElement* other) const {
    const AirportElement* airport = sameKind(other);
    if (!airport)
        return false;
    const double metres = calcDistance2(position, airport->position);
    const bool sameIdent = ident == airport->ident;
    if (isHeliport && airport->isHeliport)
        return sameIdent && metres < sameHeliportMetres;
    if (isClosed != airport->isClosed || isHeliport != airport->isHeliport)
        return false;
    if (sameIdent)
        return metres < (ident.empty() ? sameNamelessAirportMetres : sameAirportMetres);
    return ident.empty() && !name.empty() && metres < sameNamelessAirportMetres;
}

std::string AirportElement::getIndicatedLabel(bool full, bool) const {
    if (!full)
        return ident;
    return (ident.empty() ? "" : ident + " - ") + name + (isHeliport ? " - Heliport" : " - Airport");
}

void AirportElement::recalculateInsertionNames() const {
    namedIdent_ = ident;
    namedName_ = name;
    insertionNames_.clear();
    std::vector<std::string> names{ident, name};
    for (const std::string* text : {&ident, &name})
        for (std::string& word : splitIntoWords(*text))
            names.push_back(std::move(word));
    std::set<std::string> taken;
    for (std::string& candidate : names) {
        const bool isNew = taken.insert(upperCaseName(candidate)).second;
        if (isNew && !candidate.empty())
            insertionNames_.push_back(std::move(candidate));
    }
}

const std::vector<std::string>& AirportElement::insertionNames() const {
    if (ident != namedIdent_ || name != namedName_)
        recalculateInsertionNames();
    return insertionNames_;
}

int AirportElement::getTrieInsertionNameCount() const {
    return static_cast<int>(insertionNames().size());
}

std::string AirportElement::getTrieInsertionName(int index) const {
    const auto& names = insertionNames();
    return index >= 0 && static_cast<size_t>(index) < names.size() ? names[static_cast<size_t>(index)] : std::string();
}

FrequencyMap AirportElement::getNavFrequencies() const {
    FrequencyMap map;
    for (const Runway& runway : runways)
        for (size_t end = 0; end < runway.ends.size(); ++end)
            for (const Approach& approach : runway.ends[end].approaches)
                map["RWY " + runway.getEndLabel(end) + " " + approach.name].push_back(approach.frequency);
    return map;
}

void AirportElement::writeStaticData(char* out) const {
    int bits = 0;
    int bit = 1;
    for (const bool flag : {isClosed, isHeliport, isPrivate, hasGliders, isTowered, isMilitary, runways.empty()}) {
        bits |= flag ? bit : 0;
        bit <<= 1;
    }
    out[0] = AIRPORT;
    out[1] = static_cast<char>(bits);
    out[2] = 0;
}

} // namespace skyvane
