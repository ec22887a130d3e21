#include "chart/areas/AreaFixture.h"
#include "chart/areas/AreaLeafes.h"
#include "chart/store/ElementId.h"

#include <sys/stat.h>

namespace skyvane {
namespace {

class AreaLeafes : public AreaTest {
protected:
    void merge(const std::string& bytes, int set = 0) {
        folder_.write("AreaLeafes.dat", bytes);
        mergeAreaLeafes(folder_.path("AreaLeafes.dat"), set, table());
    }
    /// All ids of all leaves, in the order of the leaves.
    std::vector<int> all() {
        std::vector<int> ids;
        for (int index = 0; index < AreaCount; ++index)
            if (const AreaLeaf* area = getArea(index)->asLeaf())
                ids.insert(ids.end(), area->getElements().begin(), area->getElements().end());
        return ids;
    }
    void clear() {
        for (int index = 0; index < AreaCount; ++index)
            if (AreaLeaf* area = getArea(index)->asLeaf())
                area->clear();
    }
};

std::string record(int number, const std::vector<int>& ids) {
    std::string bytes = littleEndian(number) + littleEndian(static_cast<int>(ids.size()));
    for (const int id : ids)
        bytes += littleEndian(id);
    return bytes;
}

TEST_F(AreaLeafes, areWrittenAndReadToTheByte) {
    for (const int id : {makeElementId(3, 0x7fffff), makeElementId(2, 9), makeElementId(3, 1), -1})
        leaf(7).appendElement(id);
    leaf(8).appendElement(-2);
    leaf(LastAreaIndex).appendElement(makeElementId(3, 5));
    const std::string path = folder_.path("out.dat");
    ASSERT_TRUE(writeAreaLeafes(path, 3, table()));
    const std::string golden("\x01"
                             "\x07\x00\x00\x00\x02\x00\x00\x00\xff\xff\x7f\x00\x01\x00\x00\x00"
                             "\xd7\x95\x06\x00\x01\x00\x00\x00\x05\x00\x00\x00",
                             29);
    EXPECT_EQ(bytesOfFile(path), golden);
    clear();
    leaf(7).appendElement(-1);
    mergeAreaLeafes(path, 200, table());
    EXPECT_EQ(leaf(7).getElements(), (std::vector<int>{-1, makeElementId(200, 0x7fffff), makeElementId(200, 1)}));
    EXPECT_EQ(leaf(LastAreaIndex).getElements(), std::vector<int>{makeElementId(200, 5)});
    EXPECT_FALSE(writeAreaLeafes(folder_.path("no/such/folder"), 3, table()));
}

TEST_F(AreaLeafes, keepTheLowBitsOfIdsOnly) {
    merge("\x01" + record(7, {-1, 0x7f800001}), 255);
    EXPECT_EQ(leaf(7).getElements(), (std::vector<int>{0x7fffffff, 0x7f800001}));
    merge("\x01" + record(8, {1}), 256);
    merge("\x01" + record(8, {1}), -1);
    EXPECT_TRUE(leaf(8).getElements().empty()) << "no id can hold such an index";
}

TEST_F(AreaLeafes, ofAnotherVersionOrKindGiveNothing) {
    merge("\x02" + record(7, {1}));
    merge("");
    mergeAreaLeafes(folder_.path("missing"), 0, table());
    mergeAreaLeafes(folder_.path(), 0, table());
    ASSERT_EQ(mkfifo(folder_.path("pipe").c_str(), 0600), 0);
    mergeAreaLeafes(folder_.path("pipe"), 0, table()); // must not wait for a writer
    EXPECT_TRUE(all().empty());
}

TEST_F(AreaLeafes, endAtANumberBeyondTheLast) {
    merge("\x01" + record(7, {1}) + record(AreaCount, {2}) + record(8, {3}));
    EXPECT_EQ(all(), std::vector<int>{1});
    merge("\x01" + record(-1, {2}) + record(8, {3}));
    EXPECT_EQ(all(), std::vector<int>{1});
}

TEST_F(AreaLeafes, cutAnywhereGiveWhatIsThere) {
    const std::string whole = "\x01" + record(7, {1, 2, 3}) + record(8, {}) + record(10, {4, 5});
    const std::vector<int> ids = {1, 2, 3, 4, 5};
    size_t most = 0;
    for (size_t length = 0; length <= whole.size(); ++length) {
        for (const int index : {7, 8, 10})
            leaf(index).clear();
        merge(whole.substr(0, length));
        const std::vector<int> there = all();
        ASSERT_LE(there.size(), ids.size());
        EXPECT_TRUE(std::equal(there.begin(), there.end(), ids.begin())) << length;
        EXPECT_GE(there.size(), most);
        most = there.size();
    }
    EXPECT_EQ(most, ids.size());
}

TEST_F(AreaLeafes, areNotBelievedWhenTheyCountFourBillion) {
    merge("\x01" + littleEndian(7) + littleEndian(-1) + littleEndian(8) + littleEndian(1) + littleEndian(2));
    EXPECT_TRUE(all().empty()) << "less than nothing: the reading ends";
    merge("\x01" + littleEndian(7) + littleEndian(0x7fffffff) + littleEndian(1) + littleEndian(2) + "xx");
    EXPECT_EQ(all(), (std::vector<int>{1, 2})) << "what is there";
    EXPECT_LE(leaf(7).getElements().capacity(), 16u);
}

TEST_F(AreaLeafes, recordsOfInnerNodesAreSteppedOver) {
    merge("\x01" + record(7, {1}) + record(6, {8, 1, 77}) + record(8, {2}));
    EXPECT_EQ(all(), (std::vector<int>{1, 2})) << "their ids are not taken for records";
    merge("\x01" + record(0, {}) + littleEndian(6) + littleEndian(1000) + littleEndian(8));
    EXPECT_EQ(all(), (std::vector<int>{1, 2}));
}

TEST_F(AreaLeafes, longerThanTheWindowAreReadWhole) {
    std::vector<int> many(100000);
    for (size_t i = 0; i < many.size(); ++i)
        many[i] = static_cast<int>(i * 7);
    merge("\x01" + record(5, many) + record(7, many) + record(LastAreaIndex, {1}));
    EXPECT_EQ(leaf(7).getElements(), many);
    EXPECT_EQ(leaf(LastAreaIndex).getElements().size(), 1u);
}

} // namespace
} // namespace skyvane
