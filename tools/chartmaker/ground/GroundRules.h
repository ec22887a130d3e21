#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// What a feature of a source becomes.
struct GroundKind {
    uint8_t feature = 0; ///< As GroundGeometryElement has it.
    bool isArea = false;
    uint16_t widthSteps = 0; ///< Of a line, in 0.5 m.
};

/// Which geometry a feature came with.
enum class GroundShape { OpenLine, ClosedLine, Polygon };

/// The rules of groundRules.txt: from the attributes of open geodata to kinds of ground geometry.
class GroundRules {
public:
    /// The value of an attribute of a feature, empty without one.
    using Attributes = std::function<std::string(const std::string& key)>;

    /// Lines that can't be read are left out; `errors` gets a line of words for each.
    static GroundRules parse(const std::string& text, std::string& errors);
    /// The rules that are compiled in.
    static const GroundRules& standard();

    /// Nothing when no rule takes the feature.
    std::optional<GroundKind> classify(const Attributes& attributes, GroundShape shape) const;
    /// Every attribute that a rule asks for, each once, sorted.
    std::vector<std::string> getKeys() const;

private:
    struct Condition {
        std::string key;
        std::vector<std::string> values; ///< In lower case; an empty one stands for no such attribute.
    };
    enum class Form { None, Line, Outline, Area };
    struct Rule {
        std::vector<Condition> conditions;
        Form form = Form::None;
        double widthMetres = 0.0;
        uint8_t feature = 0;
    };

    static bool parseRule(const std::string& line, Rule& rule);
    static bool takes(const Rule& rule, GroundShape shape);

    std::vector<Rule> rules_;
};

} // namespace skyvane
