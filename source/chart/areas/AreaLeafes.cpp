#include "chart/areas/AreaLeafes.h"

#include "chart/areas/AreaFile.h"
#include "chart/areas/AreaTree.h"
#include "chart/store/ElementId.h"
#include "core/bytes/ByteReader.h"
#include "core/log/Logger.h"

#include <algorithm>
#include <fstream>

namespace skyvane {
namespace {

void appendRecord(AreaFileReader& file, AreaLeaf& leaf, int subChartIndex) {
    leaf.reserveElements(static_cast<size_t>(file.getUnitsLeft()));
    size_t units = 0;
    while (const uint8_t* bytes = file.takeUnits(units)) {
        ByteReader in(bytes, units * AreaLeafesFile.unitBytes);
        for (size_t i = 0; i < units; ++i)
            leaf.appendElement(makeElementId(subChartIndex, in.little<int32_t>()));
    }
}

bool belongsTo(int id, int subChartIndex) {
    return !isCustomElement(id) && getSubChartIndex(id) == subChartIndex;
}

void writeRecord(std::ostream& out, const AreaLeaf& leaf, int number, int subChartIndex) {
    const std::vector<int>& ids = leaf.getElements();
    const auto count =
        std::count_if(ids.begin(), ids.end(), [subChartIndex](int id) { return belongsTo(id, subChartIndex); });
    if (count == 0)
        return;
    writeAreaRecordHead(out, number, static_cast<int>(count));
    for (const int id : ids)
        if (belongsTo(id, subChartIndex))
            writeAreaUnit(out, getElementIndex(id));
}

} // namespace

void mergeAreaLeafes(const std::string& path, int subChartIndex, IArea** table) {
    if (subChartIndex < 0 || subChartIndex >= MaxSubCharts)
        return;
    AreaFileReader file(path, AreaLeafesFile);
    bool innerNodes = false;
    while (file.nextRecord()) {
        IArea* area = getAreaOfTable(table, file.getNumber());
        AreaLeaf* leaf = area ? area->asLeaf() : nullptr;
        if (leaf)
            appendRecord(file, *leaf, subChartIndex);
        innerNodes = innerNodes || !leaf;
    }
    if (innerNodes || file.isDamaged())
        logText(path + " is damaged: " +
                (innerNodes ? "it names areas that hold no elements.\n" : "a record is longer than the file.\n"));
}

bool writeAreaLeafes(const std::string& path, int subChartIndex, IArea* const* table) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    writeAreaFileVersion(out, AreaLeafesFile);
    for (int index = 0; index < AreaCount; ++index)
        if (const AreaLeaf* leaf = table[index] ? table[index]->asLeaf() : nullptr)
            writeRecord(out, *leaf, index, subChartIndex);
    out.close();
    return out.good();
}

} // namespace skyvane
