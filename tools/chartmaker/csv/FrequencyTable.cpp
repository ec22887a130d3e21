#include "chartmaker/csv/FrequencyTable.h"

#include "chartmaker/csv/CsvTable.h"
#include "chartmaker/report/CompileReport.h"
#include "chartmaker/text/SourceText.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

enum Column { AirportIdent, Type, Description, Megahertz };
const CsvTable::Columns columns{"airport_ident", "type", "description", "frequency_mhz"};

/// "TWR Frankfurt Tower", or the type alone when the description says no more.
std::string serviceName(const std::string& type, const std::string& description) {
    if (type.empty() || upperCase(description).rfind(upperCase(type), 0) == 0)
        return description;
    return description.empty() ? type : type + " " + description;
}

/// Adds a frequency once. False when there are too many.
bool addFrequency(AirportFrequencies& airport, const std::string& service, const Frequency& frequency) {
    constexpr size_t mostServices = 200, mostFrequencies = 200;
    if (airport.frequencies.size() >= mostServices && airport.frequencies.count(service) == 0)
        return false;
    std::vector<Frequency>& list = airport.frequencies[service];
    if (list.size() >= mostFrequencies)
        return false;
    if (std::find(list.begin(), list.end(), frequency) == list.end())
        list.push_back(frequency);
    return true;
}

} // namespace

std::optional<Frequency> toFrequency(double megahertz) {
    constexpr double least = 2.0, greatest = 400.0;
    if (!(megahertz >= least && megahertz < greatest))
        return std::nullopt;
    const auto kilohertz = static_cast<int32_t>(std::lround(megahertz * 1000.0));
    return Frequency{kilohertz / 1000, kilohertz % 1000};
}

bool readFrequencyTable(const std::string& path, const std::unordered_set<std::string>& unwanted,
                        const SourceContext& context, FrequencyTable& table) {
    CsvTable rows(path, columns, {}, context);
    while (rows.next()) {
        if (unwanted.count(rows[AirportIdent]) > 0)
            continue;
        const auto frequency = toFrequency(readNumber(rows[Megahertz], 0.0, 1e9).value_or(0.0));
        if (!frequency) {
            context.sink.refuse(rows.getLine(),
                                "no frequency of an aviation radio: " + printable(rows[Megahertz]) + " MHz");
            continue;
        }
        AirportFrequencies& airport = table[rows[AirportIdent]];
        if (airport.firstLine == 0)
            airport.firstLine = rows.getLine().number;
        const std::string type = cleanText(rows[Type]), upperType = upperCase(type);
        if (!addFrequency(airport, serviceName(type, cleanText(rows[Description])), *frequency)) {
            context.sink.refuse(rows.getLine(), "more frequencies than an airport can have");
            continue;
        }
        airport.isTowered = airport.isTowered || upperType == "TWR" || upperType == "TOWER";
    }
    return rows.isGood();
}

} // namespace skyvane
