#include "chart/store/ElementFiles.h"

#include "chart/areas/AreaFixture.h"
#include "chart/elements/GoldenRecords.h"
#include "chart/elements/MarkElement.h"
#include "chart/store/ChartSetWriter.h"
#include "chart/store/ElementId.h"

namespace skyvane {
namespace {

MarkElement mark(const std::string& name, double longitude = 0.25, double latitude = 89.75) {
    MarkElement element;
    element.name = name;
    element.position = ChartPosition(longitude, latitude);
    return element;
}

/// The record of a mark at 42.5 N, 1.5 E, with a name and without remarks.
std::string markRecord(const std::string& name) {
    return bytesOf("04 00 00 00" + f42_5 + f1_5) + littleEndian(static_cast<int>(name.size())) + name + littleEndian(0);
}

class ElementFiles : public ::testing::Test {
protected:
    using State = ElementFilesReader::State;

    void write(const std::string& name, const std::string& bytes) {
        std::ofstream(folder_.path(name), std::ios::binary) << bytes;
    }
    void writeOffsets(const std::vector<int>& offsets, int count, int version = 2) {
        std::string bytes = littleEndian(version) + littleEndian(count);
        for (const int offset : offsets)
            bytes += littleEndian(offset);
        write("ElementOffsets.dat", bytes);
    }
    /// Each record's bytes, "-" for one that can't be read.
    std::vector<std::string> all() {
        const ElementFilesReader files(folder_.path());
        std::vector<std::string> records;
        std::vector<char> record;
        for (int i = 0; i < files.getCount(); ++i)
            records.push_back(files.read(i, record) ? std::string(record.begin(), record.end()) : "-");
        return records;
    }

    TemporaryFolder folder_;
};

TEST_F(ElementFiles, areWrittenAndReadToTheByte) {
    {
        ElementFilesWriter files(folder_.path());
        EXPECT_EQ(files.add(mark("A", 1.5, 42.5)), 0);
        EXPECT_EQ(files.add(mark("LONG", 1.5, 42.5)), 1);
        EXPECT_EQ(ElementFilesReader(folder_.path()).getState(), State::Missing);
        ASSERT_TRUE(files.finish());
    }
    EXPECT_EQ(bytesOfFile(folder_.path("ElementOffsets.dat")),
              std::string("\x02\0\0\0\x02\0\0\0\0\0\0\0\x1d\0\0\0", 16));
    EXPECT_EQ(bytesOfFile(folder_.path("Elements.dat")), markRecord("A") + markRecord("LONG"));
    EXPECT_EQ(all(), (std::vector<std::string>{markRecord("A"), markRecord("LONG")}));
    const auto entries = std::filesystem::directory_iterator(folder_.path());
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 2) << "nothing is left beside them";
}

TEST_F(ElementFiles, staysWhatItWasWithoutTheEndOfWriting) {
    ElementFilesWriter(folder_.path()).finish();
    { ElementFilesWriter(folder_.path()).add(mark("A")); }
    EXPECT_EQ(ElementFilesReader(folder_.path()).getState(), State::Good);
    EXPECT_EQ(all().size(), 0u);
    EXPECT_FALSE(ElementFilesWriter(folder_.path("none")).finish());
}

TEST_F(ElementFiles, givesOfABrokenTableWhatItTells) {
    write("Elements.dat", "aaaabbbbbcccccc");
    writeOffsets({0, 4, 9}, 3);
    EXPECT_EQ(all(), (std::vector<std::string>{"aaaa", "bbbbb", "cccccc"}));
    writeOffsets({0, 4, 9}, 4);
    EXPECT_EQ(all(), (std::vector<std::string>{"aaaa", "bbbbb"})) << "nobody knows where the third ends";
    writeOffsets({0, 4, 9}, -1); // four billion
    EXPECT_EQ(all(), (std::vector<std::string>{"aaaa", "bbbbb"}));
    EXPECT_TRUE(ElementFilesReader(folder_.path()).isCut());
    writeOffsets({0, 4, 9}, 2);
    EXPECT_EQ(all(), (std::vector<std::string>{"aaaa", "bbbbbcccccc"}));
    writeOffsets({0, 4, 9, 16, -2, -1}, 6); // unsigned: up to four billion
    EXPECT_EQ(all(), (std::vector<std::string>{"aaaa", "bbbbb", "-", "-", "-", "-"}));
    writeOffsets({0, 15}, 2);
    EXPECT_EQ(all(), (std::vector<std::string>{"aaaabbbbbcccccc", ""}));
}

TEST_F(ElementFiles, tellsWhyThereIsNothing) {
    const auto state = [this] { return ElementFilesReader(folder_.path()).getState(); };
    EXPECT_EQ(state(), State::Missing);
    writeOffsets({0}, 1);
    EXPECT_EQ(state(), State::Missing);
    write("Elements.dat", "aaaa");
    EXPECT_EQ(state(), State::Good);
    writeOffsets({0}, 1, 3);
    EXPECT_EQ(state(), State::OtherVersion);
    writeOffsets({0, 2, 1}, 3);
    EXPECT_EQ(state(), State::DecreasingOffsets);
    EXPECT_TRUE(all().empty());
    write("ElementOffsets.dat", "\x02");
    EXPECT_EQ(state(), State::Missing);
}

TEST_F(ElementFiles, ofAWholeSetHaveNamesAndAreas) {
    write("AreaLeafesAcc.dat", "of an older set");
    ChartSetWriter set(folder_.path());
    EXPECT_EQ(set.add(mark("ab")), 0);
    EXPECT_EQ(set.add(mark("b", 0.75, 89.75)), 1);
    ASSERT_TRUE(set.finish());
    const auto one = littleEndian(1), zero = littleEndian(0), two = littleEndian(2);
    const std::string leafB = zero + one;
    EXPECT_EQ(bytesOfFile(folder_.path("Names.dat")),
              two + "A" + one + "B" + leafB + one + zero + one + zero + "B" + leafB + one + one + two + zero);
    EXPECT_EQ(bytesOfFile(folder_.path("AreaLeafes.dat")),
              "\x01" + littleEndian(7) + one + zero + littleEndian(8) + one + one);
    EXPECT_FALSE(std::filesystem::exists(folder_.path("AreaLeafesAcc.dat")));
    EXPECT_FALSE(ChartSetWriter(folder_.path("none")).finish());
}

} // namespace
} // namespace skyvane
