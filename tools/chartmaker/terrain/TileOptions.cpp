#include "chartmaker/terrain/TileOptions.h"

#include <algorithm>

namespace skyvane {

bool parseTileOptions(const Arguments& arguments, const std::vector<std::string>& names, TileOptions& options,
                      std::string& error) {
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument.rfind("--", 0) != 0)
            options.files.push_back(argument);
        else if (std::find(names.begin(), names.end(), argument) == names.end())
            error = "\"" + argument + "\" is unknown";
        else if (i + 1 >= arguments.size())
            error = "\"" + argument + "\" needs a value";
        else
            options.values[argument] = arguments[++i];
    }
    for (const std::string& name : names) {
        const std::string& value = options.values[name];
        if (error.empty() && (value.empty() || (name != "--out" && value.find_first_of("/\n") != std::string::npos)))
            error = name + (name == "--out" ? " is missing" : " is missing, or no name");
    }
    if (error.empty() && options.files.empty())
        error = "no files are named";
    return error.empty();
}

} // namespace skyvane
