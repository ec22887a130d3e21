#pragma once

#include <map>
#include <string>

namespace skyvane {

class IProcedureFactory;

/// One line of the list from which a pilot chooses a procedure: what its factory offers for a chart element.
struct IndicatedProcedure {
    int chartIndex = 0; ///< Of the element.
    std::string text;
    IProcedureFactory* factory = nullptr;
    std::map<std::string, std::string> parameters; ///< The factory reads them back in its setup.
};

} // namespace skyvane
