#pragma once

#include "chart/areas/AreaTree.h"
#include "chart/names/Trie.h"
#include "chart/store/ElementFiles.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane {

/// Makes a whole chart set of a folder: elements, their offsets, names and areas.
///
///     ChartSetWriter set(folder);
///     for (const auto& element : elements) set.add(*element);
///     if (set.finish())
///         SetDescription{7, "Vendor", "Area", "folder"}.save(chartDataFolder + "area.sci");
///
/// Acceleration data of an older set goes: the program makes it anew. Takes some 50 MB for the areas of the earth.
class ChartSetWriter {
public:
    /// The folder must exist.
    explicit ChartSetWriter(const std::string& folder);

    /// The element's index in the set, -1 when it has no room for more.
    int add(const IChartElement& element);
    /// True when all files are in place. An older set stays as it was until all of the new one is written; a kill while
    /// the one takes the place of the other leaves a set without elements.
    bool finish();

private:
    std::string folder_;
    ElementFilesWriter elements_;
    Trie names_;
    std::vector<IArea*> table_;
    std::unique_ptr<AreaArena> areas_;
};

} // namespace skyvane
