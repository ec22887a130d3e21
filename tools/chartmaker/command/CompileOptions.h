#pragma once

#include "chartmaker/command/ChartMaker.h"
#include "chartmaker/compile/SourceKind.h"
#include "chartmaker/ground/GroundSource.h"
#include "chartmaker/region/Region.h"

#include <string>
#include <vector>

namespace skyvane {

/// What the command line of "chartmaker compile" asks for.
struct CompileOptions {
    struct Source {
        const SourceKind* kind;
        std::string path;
    };

    Region region;               ///< The world unless told otherwise.
    std::vector<Source> sources; ///< In the order in which they are to be read: that of the table of kinds.
    std::string out;             ///< The folder of chart data.
    std::string vendor;
    std::string area;
    std::string report; ///< A file, or empty.
    int chartVersion = 1;
    double groundToleranceMetres = DefaultGroundToleranceMetres;
};

/// The kinds of sources, in the order in which they are read: what others look up comes first.
extern const std::vector<SourceKind> sourceKinds;

/// False, with the words in `error`, when an argument is unknown, its value doesn't fit, or something is missing.
bool parseCompileOptions(const Arguments& arguments, CompileOptions& options, std::string& error);

} // namespace skyvane
