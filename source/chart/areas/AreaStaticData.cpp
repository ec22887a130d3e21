#include "chart/areas/AreaStaticData.h"

#include "chart/areas/AreaFile.h"
#include "chart/areas/AreaTree.h"
#include "chart/areas/IAreaElementSet.h"
#include "chart/elements/IChartElement.h"
#include "chart/store/ElementId.h"
#include "core/IProgressSink.h"
#include "core/files/SafeFile.h"
#include "core/ini/IniFile.h"
#include "core/log/Logger.h"

#include <fstream>

namespace skyvane {
namespace {

constexpr uint8_t UnreadableByte = 255;
/// Further ones are only counted.
constexpr int UnreadableElementsLogged = 20;
/// The progress is told so many times in all.
constexpr int ProgressSteps = 1000;

class DirtyFlag {
public:
    explicit DirtyFlag(const std::string& accPath) : path_(accPath + ".dirty"), document_(path_) {}

    bool isSet() { return document_.isAvailable("", "dirty") && document_.get("", "dirty") == "1"; }
    /// True when it is on disk.
    bool save(bool dirty) {
        document_.set("", "dirty", dirty ? "1" : "0");
        return document_.Save(path_);
    }

private:
    std::string path_;
    IniFile document_;
};

/// Whether the file has exactly one record for each leaf with new ids, of as many bytes.
bool fits(const std::string& path, IArea** table) {
    long pending = 0;
    for (int index = 0; index < AreaCount; ++index)
        if (const AreaLeaf* leaf = table[index] ? table[index]->asLeaf() : nullptr) {
            if (leaf->getPendingCount() < 0)
                return false;
            pending += leaf->getPendingCount();
        }
    AreaFileReader file(path, AreaLeafesAccFile);
    if (!file.good())
        return false;
    std::vector<bool> seen(AreaCount, false);
    while (file.nextRecord()) {
        const IArea* area = getAreaOfTable(table, file.getNumber());
        const AreaLeaf* leaf = area ? area->asLeaf() : nullptr;
        const auto number = static_cast<size_t>(file.getNumber());
        if (!leaf || seen[number] || file.getUnitsLeft() != static_cast<uint64_t>(leaf->getPendingCount()))
            return false;
        seen[number] = true;
        pending -= leaf->getPendingCount();
    }
    return pending == 0 && !file.isDamaged();
}

/// The bytes of a file that fits.
void append(const std::string& path, IArea** table) {
    AreaFileReader file(path, AreaLeafesAccFile);
    while (file.nextRecord()) {
        IArea* area = getAreaOfTable(table, file.getNumber());
        AreaLeaf* leaf = area ? area->asLeaf() : nullptr;
        size_t units = 0;
        while (const uint8_t* bytes = leaf ? file.takeUnits(units) : nullptr)
            leaf->appendStaticBytes(bytes, units * AreaLeaf::BytesPerElement);
    }
}

/// One run over the tree.
struct StaticDataRun {
    IAreaElementSet* set;
    std::ostream& out;
    IArea** table;
    int& done;
    IProgressSink* progress;
    int unreadable = 0;
    bool cancelled = false;

    void visit(int index) {
        IArea* area = getAreaOfTable(table, index);
        if (!area)
            return;
        ++done;
        if (progress && !cancelled && done % (AreaCount / ProgressSteps) == 0) {
            progress->setProgress(static_cast<double>(done) / AreaCount);
            cancelled = progress->isCancelled();
        }
        if (AreaLeaf* leaf = area->asLeaf()) {
            fill(*leaf, index);
            return;
        }
        const AreaNode* node = area->asNode();
        for (int i = 0; i < node->getChildCount(); ++i)
            visit(node->getChild(i));
    }

    void fill(AreaLeaf& leaf, int index) {
        const long count = leaf.getPendingCount();
        if (count <= 0)
            return;
        writeAreaRecordHead(out, index, static_cast<int>(count));
        const size_t total = leaf.getElements().size();
        for (size_t i = total - static_cast<size_t>(count); i < total; ++i) {
            uint8_t bytes[IChartElement::StaticDataSize];
            read(leaf.getElements()[i], bytes);
            leaf.appendStaticBytes(bytes, sizeof bytes);
            out.write(reinterpret_cast<const char*>(bytes), sizeof bytes);
        }
    }

    void read(int id, uint8_t (&bytes)[IChartElement::StaticDataSize]) {
        for (uint8_t& byte : bytes)
            byte = UnreadableByte;
        if (cancelled)
            return;
        const int index = getElementIndex(id);
        if (const std::unique_ptr<IChartElement> element = set->loadChartElement(index))
            element->writeStaticData(reinterpret_cast<char*>(bytes));
        else if (++unreadable <= UnreadableElementsLogged)
            logText("Something is wrong with the SubChart. Could not load element: " + std::to_string(index) + " (" +
                    std::to_string(id) + ")\n");
    }
};

std::string titleOf(const std::string& areaName) {
    return "Calculating vector chart accelerating data structures for:\n\n" + areaName +
           "\n\nThis will take a few minutes.\nFor best speed: Do not exit Skyvane.";
}

void recompute(IAreaElementSet* set, const std::string& path, DirtyFlag& flag, IArea** table, IProgressSink* progress) {
    logText("Calculating static chart acceleration data...\n");
    // Without its flag a file that is left unfinished would look complete: then only the memory gets the bytes.
    std::ofstream out;
    if (flag.save(true))
        out.open(path, std::ios::binary | std::ios::trunc);
    writeAreaFileVersion(out, AreaLeafesAccFile);
    if (progress)
        progress->setTitle(titleOf(set->getAreaName()));
    int done = 0;
    calcStaticData(0, set, out, table, done, progress);
    out.close();
    if (progress && progress->isCancelled())
        logText("Cancelled: it will be calculated again at the next start.\n");
    else if (!out || !flushToDisk(path) || !flag.save(false))
        logText("Could not write " + path + ": it will be calculated again at the next start.\n");
}

} // namespace

void calcStaticData(int index, IAreaElementSet* set, std::ostream& out, IArea** table, int& done,
                    IProgressSink* progress) {
    StaticDataRun run{set, out, table, done, progress};
    run.visit(index);
    if (run.unreadable > UnreadableElementsLogged)
        logText("Could not load " + std::to_string(run.unreadable) + " elements in all.\n");
}

void mergeAreaStaticData(IAreaElementSet* set, int subChartIndex, IArea** table, IProgressSink* progress, bool force) {
    if (!set || subChartIndex < 0 || subChartIndex >= MaxSubCharts)
        return;
    const std::string path = set->getLocation() + "/" + AreaLeafesAccFileName;
    DirtyFlag flag(path);
    const bool dirty = flag.isSet();
    if (dirty)
        logText("DIRTY!!! Static Data for " + set->getAreaName() + "\n");
    if (!dirty && !force && fits(path, table))
        append(path, table);
    else
        recompute(set, path, flag, table, progress);
}

} // namespace skyvane
