#pragma once

#include "chart/areas/AreaTree.h"
#include "chart/areas/IAreaElementSet.h"
#include "chart/elements/IChartElement.h"
#include "chart/store/IChartElementSource.h"
#include "sensors/TemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>

namespace skyvane {

/// An element of points and static bytes, and nothing else.
class PointElement : public IChartElement {
public:
    explicit PointElement(std::vector<ChartPosition> points, Type type = WAYPOINT, char flags = 0, char third = 0)
        : points_(std::move(points)), type_(type), flags_(flags), third_(third) {}

    void write(std::ostream&) const override {}
    bool readFromBuffer(const char*, unsigned&, unsigned) override { return false; }
    void setFromIni(IniFile*) override {}
    void writeToIni(IniFile*) const override {}
    void setDefaults() override {}
    ChartPosition getPosition() const override { return points_.front(); }
    const std::string& getRemarks() const override { return remarks_; }
    Type getType() const override { return type_; }
    std::string createDescriptionString() const override { return ""; }
    std::string getIndicatedLabel(bool, bool) const override { return ""; }
    int getTrieInsertionNameCount() const override { return 0; }
    std::string getTrieInsertionName(int) const override { return ""; }
    int getAreaDefiningPointCount() const override { return static_cast<int>(points_.size()); }
    ChartPosition getAreaDefiningPoint(int index) const override { return points_[static_cast<size_t>(index)]; }
    std::string createHTI(bool) const override { return ""; }
    void writeStaticData(char* out) const override {
        out[0] = static_cast<char>(type_);
        out[1] = flags_;
        out[2] = third_;
    }

private:
    std::vector<ChartPosition> points_;
    Type type_;
    char flags_;
    char third_;
    std::string remarks_;
};

/// The tree of the earth, made once for all tests; each test starts with empty leaves.
class AreaTest : public ::testing::Test, public IChartElementSource {
protected:
    AreaTest() {
        for (AreaLeaf& leaf : tree().arena->leafs)
            if (!leaf.getElements().empty() || !leaf.getStaticBytes().empty())
                leaf.clear();
    }

    static IArea** table() { return tree().table.data(); }
    static AreaLeaf& leaf(int index) { return *tree().table[static_cast<size_t>(index)]->asLeaf(); }

    IArea* getArea(int index) override { return getAreaOfTable(table(), index); }
    IChartElement* getChartElement(int id) override {
        const auto it = elements_.find(id);
        return it == elements_.end() ? nullptr : it->second.get();
    }

    std::map<int, std::unique_ptr<IChartElement>> elements_;
    TemporaryFolder folder_;

private:
    struct Tree {
        std::vector<IArea*> table = std::vector<IArea*>(AreaCount);
        std::unique_ptr<AreaArena> arena = createWorldWideAreaTree(false, table.data());
    };
    static Tree& tree() {
        static Tree theTree;
        return theTree;
    }
};

inline std::string bytesOfFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline std::string littleEndian(int32_t value) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(static_cast<uint32_t>(value) >> shift);
    return bytes;
}

} // namespace skyvane
