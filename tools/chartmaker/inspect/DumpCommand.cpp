#include "chartmaker/inspect/DumpCommand.h"

#include "chart/elements/ElementKinds.h"
#include "chart/store/ElementId.h"
#include "chartmaker/inspect/InspectedSet.h"
#include "chartmaker/report/CompileReport.h"
#include "core/text/StrictNumber.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <iostream>
#include <optional>

namespace skyvane {
namespace {

struct DumpOptions {
    std::string set;
    std::optional<int> element;
};

bool parse(const Arguments& arguments, DumpOptions& options, std::string& error) {
    for (size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == "--element" && i + 1 < arguments.size()) {
            double number = 0.0;
            if (!parseStrictNumber(arguments[++i], number) || number < 0.0 || number > MaxElementsOfSubChart ||
                number != std::floor(number)) {
                error = "\"" + arguments[i] + "\" is no number of an element";
                return false;
            }
            options.element = static_cast<int>(number);
        } else if (arguments[i].rfind("--", 0) == 0 || !options.set.empty()) {
            error = "\"" + arguments[i] + "\" is one too many";
            return false;
        } else {
            options.set = arguments[i];
        }
    }
    if (options.set.empty())
        error = "no set is named";
    return error.empty();
}

/// The label on one line.
std::string labelOf(const IChartElement& element) {
    std::string label = element.getIndicatedLabel(true, false);
    for (char& c : label)
        if (c == '\n')
            c = ' ';
    return printable(label);
}

int dumpElement(const InspectedSet& set, int index) {
    const std::unique_ptr<IChartElement> element = set.load(index);
    if (!element) {
        complain("element " + std::to_string(index) + " can't be read; the set has " + std::to_string(set.getCount()));
        return 1;
    }
    std::cout << index << " " << elementKinds[element->getType()].name << ": " << labelOf(*element) << "\n\n"
              << element->createDescriptionString();
    return 0;
}

void dumpLine(int index, const IChartElement& element) {
    const ChartPosition position = element.getPosition();
    char line[96];
    std::snprintf(line, sizeof line, "%7d  %-14s %11.6f %11.6f  ", index, elementKinds[element.getType()].name,
                  position.latitude, position.longitude);
    std::cout << line << labelOf(element) << '\n';
}

int dumpSet(const InspectedSet& set) {
    const SetDescription& description = set.getDescription();
    std::cout << "Vendor:   " << printable(description.vendor) << "\nArea:     " << printable(description.areaName)
              << "\nVersion:  " << description.chartVersion << "\nFolder:   " << set.getFolder()
              << "\nElements: " << set.getCount() << "\n\n";
    std::array<int, IChartElement::TypeCount> counts{};
    int absent = 0;
    for (int index = 0; index < set.getCount(); ++index) {
        if (const std::unique_ptr<IChartElement> element = set.load(index)) {
            ++counts[static_cast<size_t>(element->getType())];
            dumpLine(index, *element);
        } else {
            ++absent;
            std::cout << index << ": can't be read\n";
        }
    }
    std::cout << '\n';
    for (const ElementKind& kind : elementKinds)
        std::cout << counts[static_cast<size_t>(kind.type)] << ' ' << kind.name << '\n';
    if (absent > 0)
        complain(std::to_string(absent) + " elements can't be read");
    return absent > 0 ? 1 : 0;
}

} // namespace

int runDump(const Arguments& arguments) {
    DumpOptions options;
    std::string error;
    if (!parse(arguments, options, error)) {
        complain("dump: " + error + "; --help tells more");
        return 2;
    }
    const InspectedSet set(options.set);
    const std::string trouble = set.getTrouble();
    if (!trouble.empty())
        complain(options.set + ": " + trouble);
    const int result = options.element ? dumpElement(set, *options.element) : dumpSet(set);
    return trouble.empty() ? result : 1;
}

} // namespace skyvane
