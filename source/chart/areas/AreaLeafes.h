#pragma once

#include "chart/areas/IArea.h"

#include <string>

namespace skyvane {

/// Appends the ids of a set's AreaLeafes.dat to the leaves of the table, as ids of the set with that index. Nothing
/// happens without such a file, for one of another version, and for an index that no id can hold.
///
/// A record of an inner node is skipped by its count as far as the file goes, and a record that claims more than the
/// file holds gives what is there; the log names the file then.
void mergeAreaLeafes(const std::string& path, int subChartIndex, IArea** table);

/// Writes the file: the ids of the set with that index, of every leaf of the table that has some. False when it can't
/// be written; what was begun stays.
bool writeAreaLeafes(const std::string& path, int subChartIndex, IArea* const* table);

} // namespace skyvane
