#pragma once

#include "chart/areas/IArea.h"

#include <iosfwd>

namespace skyvane {

class IAreaElementSet;
class IProgressSink;

/// Gives the ids that a set has just brought into the leaves (see mergeAreaLeafes) their static bytes: from its
/// AreaLeafesAcc.dat, or from the elements themselves, and then writes that file for the next start.
///
/// The elements are read when `force` is set, when there is no file of this version, when it doesn't fit the leaves
/// record by record, and when the flag beside it says that its writing was interrupted. The flag is on disk before the
/// file is touched and goes only when all of the file is on disk: killed at any moment, the next start begins again.
/// Where the flag or the file can't be written the leaves get their bytes all the same. Cancelled by `progress`, which
/// may be null, the elements left count as unreadable until the next start.
void mergeAreaStaticData(IAreaElementSet* set, int subChartIndex, IArea** table, IProgressSink* progress, bool force);

/// The computation, at and below an area: appends the three bytes of each new id to its leaf, and to the file a record
/// for each leaf that has got some. An element that can't be read gets 255, 255, 255 and is named in the log. `done`
/// counts the areas gone through.
void calcStaticData(int index, IAreaElementSet* set, std::ostream& out, IArea** table, int& done,
                    IProgressSink* progress);

} // namespace skyvane
