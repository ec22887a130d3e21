#include "chartmaker/ground/GroundRules.h"

#include "chart/elements/GroundGeometryElement.h"
#include "core/text/StrictNumber.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <sstream>

extern "C" const char chartmaker_ground_rules[];

namespace skyvane {
namespace {

std::string lowerCase(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return text;
}

std::string trimmed(const std::string& text) {
    const size_t from = text.find_first_not_of(" \t\r");
    return from == std::string::npos ? "" : text.substr(from, text.find_last_not_of(" \t\r") - from + 1);
}

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts(1);
    for (const char c : text)
        if (c == separator)
            parts.emplace_back();
        else
            parts.back() += c;
    return parts;
}

std::optional<uint8_t> findFeature(const std::string& label) {
    if (label == "Other")
        return GroundGeometryElement::OtherFeature;
    for (uint8_t feature = 0; feature < GroundGeometryElement::FeatureCount; ++feature)
        if (label == GroundGeometryElement::defaultLabel(feature))
            return feature;
    return std::nullopt;
}

/// "12", "12.5 m", in steps of half a metre; what can't be read or believed gives the default's.
uint16_t widthSteps(const std::string& text, double defaultMetres) {
    constexpr double widest = 2000.0;
    std::string number = trimmed(text);
    if (number.size() > 1 && number.back() == 'm')
        number = trimmed(number.substr(0, number.size() - 1));
    double metres = 0.0;
    if (!parseStrictNumber(number, metres) || metres <= 0.0 || metres > widest)
        metres = defaultMetres;
    return static_cast<uint16_t>(std::lround(metres * 2.0));
}

} // namespace

// Blanks part the conditions; a value may hold some, so that a word without "=" belongs to the value before it.
bool GroundRules::parseRule(const std::string& line, Rule& rule) {
    const size_t colon = line.find(" : ");
    if (colon == std::string::npos)
        return false;
    std::istringstream conditions(line.substr(0, colon));
    for (std::string word; conditions >> word;) {
        const size_t equals = word.find('=');
        if (equals != std::string::npos)
            rule.conditions.push_back({word.substr(0, equals), split(lowerCase(word.substr(equals + 1)), '|')});
        else if (rule.conditions.empty())
            return false;
        else {
            std::vector<std::string> more = split(lowerCase(word), '|');
            std::vector<std::string>& values = rule.conditions.back().values;
            values.back() += " " + more.front();
            values.insert(values.end(), more.begin() + 1, more.end());
        }
    }
    std::istringstream result(line.substr(colon + 3));
    std::string form, width, label;
    result >> form >> width;
    std::getline(result, label);
    static const std::vector<std::string> forms{"none", "line", "outline", "area"};
    const auto found = std::find(forms.begin(), forms.end(), form);
    const std::optional<uint8_t> feature = findFeature(trimmed(label));
    if (found == forms.end() || !feature || !parseStrictNumber(width, rule.widthMetres))
        return false;
    rule.form = static_cast<Form>(found - forms.begin());
    rule.feature = *feature;
    return !rule.conditions.empty();
}

GroundRules GroundRules::parse(const std::string& text, std::string& errors) {
    GroundRules rules;
    for (const std::string& line : split(text, '\n')) {
        const std::string content = trimmed(line);
        if (content.empty() || content[0] == '#')
            continue;
        Rule rule;
        if (parseRule(content, rule))
            rules.rules_.push_back(std::move(rule));
        else
            errors += "no rule: " + content + "\n";
    }
    return rules;
}

const GroundRules& GroundRules::standard() {
    static const GroundRules rules = [] {
        std::string errors;
        return parse(chartmaker_ground_rules, errors);
    }();
    return rules;
}

bool GroundRules::takes(const Rule& rule, GroundShape shape) {
    switch (rule.form) {
    case Form::None:
    case Form::Outline:
        return true;
    case Form::Line:
        return shape != GroundShape::Polygon;
    case Form::Area:
        return shape != GroundShape::OpenLine;
    }
    return false;
}

std::optional<GroundKind> GroundRules::classify(const Attributes& attributes, GroundShape shape) const {
    const auto holds = [&](const Condition& condition) {
        const std::string value = lowerCase(attributes(condition.key));
        return std::find(condition.values.begin(), condition.values.end(), value) != condition.values.end();
    };
    for (const Rule& rule : rules_) {
        if (!takes(rule, shape) || !std::all_of(rule.conditions.begin(), rule.conditions.end(), holds))
            continue;
        if (rule.form == Form::None)
            return std::nullopt;
        const bool isArea = rule.form == Form::Area;
        const bool hasWidth = !isArea && rule.widthMetres > 0.0;
        return GroundKind{rule.feature, isArea,
                          hasWidth ? widthSteps(attributes("width"), rule.widthMetres) : uint16_t{0}};
    }
    return std::nullopt;
}

std::vector<std::string> GroundRules::getKeys() const {
    std::set<std::string> keys{"name", "ref", "width"};
    for (const Rule& rule : rules_)
        for (const Condition& condition : rule.conditions)
            keys.insert(condition.key);
    return {keys.begin(), keys.end()};
}

} // namespace skyvane
