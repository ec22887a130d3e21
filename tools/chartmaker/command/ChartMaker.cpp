#include "chartmaker/command/ChartMaker.h"

#include "chartmaker/command/CompileCommand.h"
#include "chartmaker/inspect/DrawCommand.h"
#include "chartmaker/inspect/DumpCommand.h"
#include "chartmaker/inspect/ReliefCommand.h"
#include "chartmaker/terrain/BackgroundsCommand.h"
#include "chartmaker/terrain/LevelsCommand.h"
#include "chartmaker/terrain/TerrainCommand.h"

#include <algorithm>
#include <iostream>
#include <iterator>

extern "C" const char chartmaker_usage[];

namespace skyvane {
namespace {

struct Command {
    const char* name;
    int (*run)(const Arguments& arguments); ///< Without the name of the command.
};

constexpr Command commands[] = {
    {"compile", runCompile}, //
    {"dump", runDump},       //
    {"draw", runDraw},       //
    {"terrain", runTerrain}, //
    {"levels", runLevels},   //
    {"relief", runRelief},   //
    {"backgrounds", runBackgrounds},
};

} // namespace

void complain(const std::string& words) {
    std::cerr << "chartmaker: " << words << '\n';
}

int runChartMaker(const Arguments& arguments) {
    if (arguments.empty()) {
        std::cerr << chartmaker_usage;
        return 2;
    }
    if (std::find(arguments.begin(), arguments.end(), "--help") != arguments.end()) {
        std::cout << chartmaker_usage;
        return 0;
    }
    const auto* command = std::find_if(std::begin(commands), std::end(commands),
                                       [&](const Command& c) { return arguments[0] == c.name; });
    if (command != std::end(commands))
        return command->run({arguments.begin() + 1, arguments.end()});
    complain("\"" + arguments[0] + "\" is no command; --help tells more");
    return 2;
}

} // namespace skyvane
