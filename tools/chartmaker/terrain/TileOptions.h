#pragma once

#include "chartmaker/command/ChartMaker.h"

#include <map>

namespace skyvane {

/// What a command that makes tiles is told: values of options by their names, and files.
struct TileOptions {
    std::map<std::string, std::string> values;
    std::vector<std::string> files;
};

/// Each of the options is needed; all but "--out" name things that become parts of file names. False, with the words in
/// `error`, when something is missing or wrong.
bool parseTileOptions(const Arguments& arguments, const std::vector<std::string>& names, TileOptions& options,
                      std::string& error);

} // namespace skyvane
