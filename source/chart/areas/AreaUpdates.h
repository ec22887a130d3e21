#pragma once

#include "chart/areas/IArea.h"

namespace skyvane {

class IChartElement;

// Elements into the table of an area tree, and out of it. The table holds AreaCount pointers.

/// Enters an element, with its static bytes, in all leaves at or below an area that its outline touches.
///
/// The outline is the points that define the element and, on each segment longer than 10 km and up to 5000 km, a place
/// every 10 km. What lies within the outline only isn't entered. At a leaf's corner it goes to all that meet there.
void updateAreaTree(IArea* area, const IChartElement* element, int id, IArea** table);

/// Takes an element out of all leaves.
void deleteElementFromAreaTree(int id, IArea** table);

/// Whether each leaf at or below an area has three static bytes for each of its elements.
bool checkStaticDataSanity(IArea** table, unsigned index);

} // namespace skyvane
