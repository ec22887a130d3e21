#include "chartmaker/command/CompileOptions.h"

#include "core/text/StrictNumber.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace skyvane {
namespace {

bool setText(std::string& out, const std::string& value, std::string& error) {
    out = value;
    if (value.empty())
        error = "an empty text";
    return !value.empty();
}

bool setRegion(CompileOptions& options, const std::string& value, std::string& error) {
    const std::optional<Region> region = Region::parse(value, error);
    if (region)
        options.region = *region;
    return region.has_value();
}

bool setVersion(CompileOptions& options, const std::string& value, std::string& error) {
    double number = 0.0;
    if (!parseStrictNumber(value, number) || number < 0.0 || number > 2e9 || number != std::floor(number)) {
        error = "\"" + value + "\" is no version: a whole number";
        return false;
    }
    options.chartVersion = static_cast<int>(number);
    return true;
}

bool setTolerance(CompileOptions& options, const std::string& value, std::string& error) {
    constexpr double highest = 5000.0;
    const bool isGood = parseStrictNumber(value, options.groundToleranceMetres) &&
                        options.groundToleranceMetres >= 0.0 && options.groundToleranceMetres <= highest;
    if (!isGood)
        error = "\"" + value + "\" is no tolerance: 0 to 5000 metres";
    return isGood;
}

using Setter = bool (*)(CompileOptions&, const std::string& value, std::string& error);

const std::unordered_map<std::string, Setter> values{
    {"--region", setRegion},
    {"--chart-version", setVersion},
    {"--tolerance", setTolerance},
    {"--out", [](CompileOptions& o, const std::string& v, std::string& e) { return setText(o.out, v, e); }},
    {"--vendor", [](CompileOptions& o, const std::string& v, std::string& e) { return setText(o.vendor, v, e); }},
    {"--area", [](CompileOptions& o, const std::string& v, std::string& e) { return setText(o.area, v, e); }},
    {"--report", [](CompileOptions& o, const std::string& v, std::string& e) { return setText(o.report, v, e); }},
};

bool isOption(const std::string& argument) {
    return argument.rfind("--", 0) == 0;
}

const SourceKind* findSourceKind(const std::string& option) {
    const auto found = std::find_if(sourceKinds.begin(), sourceKinds.end(),
                                    [&](const SourceKind& kind) { return option == kind.option; });
    return found == sourceKinds.end() ? nullptr : &*found;
}

bool isComplete(const CompileOptions& options, std::string& error) {
    const std::pair<const char*, const std::string*> needed[] = {
        {"--out", &options.out}, {"--vendor", &options.vendor}, {"--area", &options.area}};
    for (const auto& [name, value] : needed)
        if (value->empty())
            error = std::string(name) + " is missing";
    if (error.empty() && options.sources.empty())
        error = "no sources are named";
    // The first of them are airports, if any are.
    if (error.empty() && options.region.isCountries() && options.sources.front().kind != &sourceKinds.front())
        error = "a --region of countries needs --airports: they tell where a country is";
    return error.empty();
}

} // namespace

bool parseCompileOptions(const Arguments& arguments, CompileOptions& options, std::string& error) {
    error.clear();
    for (size_t i = 0; i < arguments.size();) {
        const std::string& name = arguments[i++];
        const SourceKind* kind = findSourceKind(name);
        const auto value = values.find(name);
        if (!kind && value == values.end()) {
            error = "\"" + name + "\" is unknown";
            return false;
        }
        if (i >= arguments.size() || isOption(arguments[i])) {
            error = name + " needs a value";
            return false;
        }
        if (!kind && !value->second(options, arguments[i++], error)) {
            error = name + ": " + error;
            return false;
        }
        for (; kind && i < arguments.size() && !isOption(arguments[i]); ++i)
            options.sources.push_back({kind, arguments[i]});
    }
    std::stable_sort(options.sources.begin(), options.sources.end(),
                     [](const auto& a, const auto& b) { return a.kind < b.kind; });
    return isComplete(options, error);
}

} // namespace skyvane
