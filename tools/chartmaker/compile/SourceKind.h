#pragma once

#include "chartmaker/compile/IElementSink.h"

#include <string>

namespace skyvane {

class IProgressSink;
class PointIndex;
class Region;

/// What a reader of source files is handed; everything outlives the reader.
struct SourceContext {
    IElementSink& sink;
    const Region& region;
    PointIndex& points;                 ///< The fixes and navaids that were added so far.
    IProgressSink& progress;            ///< Takes the share of the file that is read.
    double groundToleranceMetres = 0.0; ///< So far simplified ground geometry may be from what it was.
};

/// A kind of source: the option that names its files, and what reads one of them. False when the file can't be read,
/// with a refusal that tells why.
struct SourceKind {
    const char* option;
    bool (*read)(const std::string& path, const SourceContext& context);
};

} // namespace skyvane
