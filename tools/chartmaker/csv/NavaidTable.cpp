#include "chartmaker/csv/NavaidTable.h"

#include "chart/elements/NDBElement.h"
#include "chart/elements/VORElement.h"
#include "chart/elements/WaypointElement.h"
#include "chartmaker/csv/CsvTable.h"
#include "chartmaker/csv/FrequencyTable.h"
#include "chartmaker/report/CompileReport.h"
#include "chartmaker/text/SourceText.h"
#include "core/text/Numbers.h"

#include <map>

namespace skyvane {
namespace {

enum Column {
    Ident,
    Name,
    Type,
    Kilohertz,
    Latitude,
    Longitude,
    Country,
    DmeKilohertz,
    DmeChannel,
    Slaved,
    Variation,
    Usage
};
const CsvTable::Columns needed{"ident",        "name",          "type",       "frequency_khz",
                               "latitude_deg", "longitude_deg", "iso_country"};
const CsvTable::Columns optional{"dme_frequency_khz", "dme_channel", "slaved_variation_deg", "magnetic_variation_deg",
                                 "usageType"};

AirwayUse readUse(const std::string& usage) {
    AirwayUse use;
    use.highAltitude = usage == "HI" || usage == "BOTH";
    use.lowAltitude = usage != "HI";
    return use;
}

float readVariation(const std::string& text) {
    const auto degrees = readNumber(text, -180.0, 180.0);
    return degrees ? static_cast<float>(*degrees) : UnknownVariation;
}

/// What all kinds of navaids share.
template <class Element>
std::unique_ptr<Element> makeNavaid(const CsvTable& table, const ChartPosition& position) {
    auto element = std::make_unique<Element>();
    element->position = position;
    element->ident = cleanText(table[Ident]);
    element->use = readUse(table[Usage]);
    return element;
}

/// "DME channel 114X (116.70 MHz)", empty without a channel.
std::string dmeText(const CsvTable& table) {
    const std::string channel = cleanText(table[DmeChannel]);
    const auto kilohertz = readNumber(table[DmeKilohertz], 1.0, 1e6);
    if (channel.empty())
        return channel;
    return "DME channel " + channel + (kilohertz ? " (" + toFixedText(*kilohertz / 1000.0, 2) + " MHz)" : "");
}

std::unique_ptr<IChartElement> makeNdb(const CsvTable& table, const ChartPosition& position, int) {
    auto ndb = makeNavaid<NDBElement>(table, position);
    ndb->name = cleanText(table[Name]);
    ndb->frequencyKilohertz = readWhole(table[Kilohertz], 100, 3000).value_or(0);
    ndb->magneticVariationDegrees = readVariation(table[Variation]);
    ndb->remarks = dmeText(table);
    return ndb;
}

/// The needle of a VOR follows the variation that it is set to, where that is known.
std::unique_ptr<IChartElement> makeVor(const CsvTable& table, const ChartPosition& position, int vorType) {
    auto vor = makeNavaid<VORElement>(table, position);
    vor->name = cleanText(table[Name]);
    vor->vorType = vorType;
    vor->frequency = toFrequency(readNumber(table[Kilohertz], 0.0, 1e9).value_or(0.0) / 1000.0).value_or(Frequency());
    const float slaved = readVariation(table[Slaved]);
    vor->magneticVariationDegrees = slaved < UnknownVariationBelow ? readVariation(table[Variation]) : slaved;
    vor->tacanChannel = cleanText(table[DmeChannel]);
    return vor;
}

std::unique_ptr<IChartElement> makeDme(const CsvTable& table, const ChartPosition& position, int) {
    auto fix = makeNavaid<WaypointElement>(table, position);
    const std::string dme = dmeText(table);
    fix->remarks = cleanText(table[Name]);
    addRemark(fix->remarks, dme.empty() ? "DME" : dme);
    return fix;
}

struct Maker {
    std::unique_ptr<IChartElement> (*make)(const CsvTable& table, const ChartPosition& position, int vorType);
    int vorType;
};

const std::map<std::string, Maker> makers{
    {"NDB", {makeNdb, 0}},
    {"NDB-DME", {makeNdb, 0}},
    {"VOR", {makeVor, VORElement::PlainVor}},
    {"VOR-DME", {makeVor, VORElement::VorDme}},
    {"VORTAC", {makeVor, VORElement::Vortac}},
    {"TACAN", {makeVor, VORElement::Tacan}},
    {"DME", {makeDme, 0}},
};

void addNavaid(const CsvTable& table, const SourceContext& context) {
    const auto position = readPosition(table[Latitude], table[Longitude]);
    const auto maker = makers.find(table[Type]);
    if (!position)
        return context.sink.refuse(table.getLine(),
                                   "no position: " + printable(table[Latitude] + ", " + table[Longitude]));
    if (maker == makers.end())
        return context.sink.refuse(table.getLine(), "no kind of navaid: \"" + printable(table[Type]) + "\"");
    if (trimmed(table[Ident]).empty())
        return context.sink.refuse(table.getLine(), "a navaid without ident");
    context.sink.add(maker->second.make(table, *position, maker->second.vorType), table.getLine(),
                     {table[Country], {}});
}

} // namespace

bool readNavaidTable(const std::string& path, const SourceContext& context) {
    CsvTable table(path, needed, optional, context);
    while (table.next())
        addNavaid(table, context);
    return table.isGood();
}

} // namespace skyvane
