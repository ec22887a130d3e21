#include "chart/areas/AreaFile.h"
#include "chart/areas/AreaFixture.h"
#include "chart/areas/AreaLeafes.h"
#include "chart/areas/AreaStaticData.h"
#include "chart/areas/AreaUpdates.h"
#include "chart/store/ElementId.h"
#include "core/IProgressSink.h"
#include "core/ini/IniFile.h"

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace skyvane {
namespace {

/// A set whose element i has the static bytes VOR, i, 'x'. Each read is counted, and can be made to fail or to kill.
class FakeSet : public IAreaElementSet {
public:
    explicit FakeSet(std::string location) : location_(std::move(location)) {}
    std::string getLocation() const override { return location_; }
    std::string getAreaName() const override { return "Skyvane Islands"; }
    std::unique_ptr<IChartElement> loadChartElement(int index) override {
        ++reads;
        if (onRead)
            onRead();
        if (index == unreadable)
            return nullptr;
        return std::make_unique<PointElement>(std::vector<ChartPosition>{{0, 0}}, IChartElement::VOR,
                                              static_cast<char>(index), 'x');
    }

    int reads = 0;
    int unreadable = -1;
    std::function<void()> onRead;

private:
    std::string location_;
};

class Sink : public IProgressSink {
public:
    void setTitle(const std::string& text) override { title = text; }
    void setProgress(double share) override {
        EXPECT_GT(share, last);
        EXPECT_LE(share, 1.0);
        last = share;
        ++calls;
    }
    std::string title;
    double last = 0.0;
    int calls = 0;
};

class AreaStaticData : public AreaTest {
protected:
    const std::vector<int> leafs_ = {7, 8, 10, LastAreaIndex};

    std::string acc() { return folder_.path(AreaLeafesAccFileName); }
    std::string dirty() { return IniFile(acc() + ".dirty").get("", "dirty"); }
    /// The ids of a set with seven elements in three leaves.
    void bringIds(int set) {
        for (const int i : {0, 1, 2})
            leaf(7).appendElement(makeElementId(set, i));
        for (const int i : {2, 3, 4, 5})
            leaf(10).appendElement(makeElementId(set, i));
        leaf(LastAreaIndex).appendElement(makeElementId(set, 6));
    }
    void clear() {
        for (const int index : leafs_)
            leaf(index).clear();
    }
    /// A start: ids, then their bytes; the result is the number of elements that had to be read.
    int start(int set = 3, bool force = false) {
        FakeSet chart(folder_.path());
        bringIds(set);
        mergeAreaStaticData(&chart, set, table(), nullptr, force);
        return chart.reads;
    }
    void expectComplete() {
        EXPECT_TRUE(checkStaticDataSanity(table(), 0));
        for (const int index : leafs_)
            for (size_t i = 0; i < leaf(index).getElements().size(); ++i) {
                const uint8_t* bytes = leaf(index).getStaticBytes().data() + 3 * i;
                EXPECT_EQ(bytes[0], IChartElement::VOR);
                EXPECT_EQ(bytes[1], getElementIndex(leaf(index).getElements()[i]));
                EXPECT_EQ(bytes[2], 'x');
            }
    }
};

TEST_F(AreaStaticData, isWrittenToTheByteAndReadAgain) {
    EXPECT_EQ(start(), 8);
    expectComplete();
    const std::string golden("\x02\x00\x00\x00"
                             "\x07\x00\x00\x00\x03\x00\x00\x00\x06\x00x\x06\x01x\x06\x02x"
                             "\x0a\x00\x00\x00\x04\x00\x00\x00\x06\x02x\x06\x03x\x06\x04x\x06\x05x"
                             "\xd7\x95\x06\x00\x01\x00\x00\x00\x06\x06x",
                             52);
    EXPECT_EQ(bytesOfFile(acc()), golden) << "an empty leaf has no record";
    EXPECT_EQ(bytesOfFile(acc() + ".dirty"), "dirty = 0\n\n");
    clear();
    EXPECT_EQ(start(), 0) << "from the file this time";
    expectComplete();
    clear();
    EXPECT_EQ(start(3, true), 8) << "by force";
    expectComplete();
}

TEST_F(AreaStaticData, ofASecondSetComesBehindTheFirst) {
    const PointElement custom({{0.1, 89.9}}, IChartElement::VOR, 0, 'x');
    updateAreaTree(getArea(0), &custom, makeElementId(0, 0), table());
    start(3);
    std::filesystem::rename(acc(), folder_.path("first"));
    start(4);
    expectComplete();
    EXPECT_EQ(bytesOfFile(acc()), bytesOfFile(folder_.path("first"))) << "only its own";
    EXPECT_EQ(leaf(7).getElements().size(), 7u);
}

TEST_F(AreaStaticData, isBegunAgainWhenItWasKilledAtAnyElement) {
    for (int fatal = 1; fatal <= 8; ++fatal) {
        std::filesystem::remove(acc());
        std::filesystem::remove(acc() + ".dirty");
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            FakeSet chart(folder_.path());
            chart.onRead = [&chart, fatal] {
                if (chart.reads == fatal)
                    _exit(1);
            };
            bringIds(3);
            mergeAreaStaticData(&chart, 3, table(), nullptr, false);
            _exit(0);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(WEXITSTATUS(status), 1);
        EXPECT_EQ(dirty(), "1");
        clear();
        EXPECT_EQ(start(), 8) << "killed at element " << fatal;
        EXPECT_EQ(dirty(), "0");
        expectComplete();
    }
}

TEST_F(AreaStaticData, isBegunAgainWhenItsFileIsCut) {
    start();
    const std::string whole = bytesOfFile(acc());
    for (const char* flag : {"1", "0", ""})
        for (size_t length = 0; length <= whole.size(); ++length) {
            folder_.write(AreaLeafesAccFileName, whole.substr(0, length));
            folder_.write(std::string(AreaLeafesAccFileName) + ".dirty",
                          *flag ? "dirty = " + std::string(flag) + "\n" : "");
            clear();
            const bool usable = *flag != '1' && length == whole.size();
            EXPECT_EQ(start(), usable ? 0 : 8) << "flag " << flag << ", length " << length;
            expectComplete();
            EXPECT_EQ(bytesOfFile(acc()), whole);
        }
}

TEST_F(AreaStaticData, thatDoesNotFitItsLeavesIsCalculatedAgain) {
    start();
    const std::string whole = bytesOfFile(acc());
    const std::string bad[] = {
        "\x01" + whole.substr(1),                                    // another version
        whole + whole.substr(4, 17),                                 // a leaf twice
        whole + littleEndian(6) + littleEndian(0),                   // an inner node
        whole + littleEndian(8) + littleEndian(1) + "abc",           // a leaf that has no ids
        whole.substr(0, 8) + littleEndian(2) + whole.substr(12),     // fewer than the leaf's ids
        whole.substr(0, 8) + littleEndian(-1) + whole.substr(12),    // four billion
        littleEndian(2) + littleEndian(AreaCount) + whole.substr(4), // ends at once
    };
    for (const std::string& bytes : bad) {
        folder_.write(AreaLeafesAccFileName, bytes);
        clear();
        EXPECT_EQ(start(), 8);
        expectComplete();
        EXPECT_EQ(bytesOfFile(acc()), whole);
    }
}

TEST_F(AreaStaticData, standsInForWhatCannotBeRead) {
    FakeSet chart(folder_.path());
    chart.unreadable = 2;
    bringIds(3);
    Sink sink;
    mergeAreaStaticData(&chart, 3, table(), &sink, false);
    EXPECT_EQ(leaf(7).getStaticBytes(), (std::vector<uint8_t>{6, 0, 'x', 6, 1, 'x', 255, 255, 255}));
    EXPECT_TRUE(checkStaticDataSanity(table(), 0));
    EXPECT_EQ(sink.title, "Calculating vector chart accelerating data structures for:\n\nSkyvane Islands"
                          "\n\nThis will take a few minutes.\nFor best speed: Do not exit Skyvane.");
    EXPECT_GT(sink.calls, 900);
    EXPECT_GT(sink.last, 0.99);
}

TEST_F(AreaStaticData, isInMemoryWhereItCannotBeWritten) {
    FakeSet chart(folder_.path("missing"));
    bringIds(3);
    mergeAreaStaticData(&chart, 3, table(), nullptr, false);
    EXPECT_EQ(chart.reads, 8);
    expectComplete();
    // A file whose flag can't be kept beside it isn't touched.
    clear();
    std::filesystem::create_directory(acc() + ".dirty");
    EXPECT_EQ(start(), 8);
    expectComplete();
    EXPECT_FALSE(std::filesystem::exists(acc()));
}

} // namespace
} // namespace skyvane
