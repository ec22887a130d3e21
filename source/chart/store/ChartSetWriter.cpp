#include "chart/store/ChartSetWriter.h"

#include "chart/areas/AreaFile.h"
#include "chart/areas/AreaLeafes.h"
#include "chart/areas/AreaUpdates.h"
#include "chart/store/NameEntries.h"
#include "core/files/SafeFile.h"

#include <cstdio>
#include <fstream>

namespace skyvane {
namespace {

/// A name that stands for too many elements finds fewer of them; that is in the log and no reason to have no set.
bool saveNames(const Trie& names, const std::string& path) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    names.Save(out);
    out.close();
    return out.good();
}

} // namespace

ChartSetWriter::ChartSetWriter(const std::string& folder)
    : folder_(folder), elements_(folder), table_(AreaCount), areas_(createWorldWideAreaTree(false, table_.data())) {}

int ChartSetWriter::add(const IChartElement& element) {
    const int index = elements_.add(element);
    if (index >= 0) {
        insertInTrie(names_, element, index);
        updateAreaTree(table_[0], &element, index, table_.data());
    }
    return index;
}

bool ChartSetWriter::finish() {
    const std::string names = folder_ + "/" + NamesFileName, areas = folder_ + "/" + AreaLeafesFileName;
    const std::string acc = folder_ + "/" + AreaLeafesAccFileName;
    if (!saveNames(names_, names + ".new") || !writeAreaLeafes(areas + ".new", 0, table_.data()) ||
        !elements_.prepare()) {
        for (const std::string& path : {names, areas})
            std::remove((path + ".new").c_str());
        return false;
    }
    // Without offsets there are no elements: what follows never meets the older ones.
    for (const std::string& old : {folder_ + "/" + ElementOffsetsFileName, acc, acc + ".dirty"})
        std::remove(old.c_str());
    return replaceFile(names + ".new", names) && replaceFile(areas + ".new", areas) && elements_.finish();
}

} // namespace skyvane
