#include "sensors/log/LogIndex.h"

#include "core/log/Logger.h"
#include "sensors/TemporaryFolder.h"
#include "sensors/log/LogBytes.h"
#include "sensors/log/LogFile.h"
#include "sensors/log/LogWriter.h"

#include <gtest/gtest.h>

#include <random>

namespace skyvane {
namespace {

struct LogIndexTest : testing::Test {
    TemporaryFolder folder;
    std::string path = folder.path("flight.dat");

    Bytes indexed(const Bytes& log) {
        LogBytes::saveBytes(path, log);
        testing::internal::CaptureStdout();
        calculateLogIndex(path);
        said = testing::internal::GetCapturedStdout();
        return LogBytes::load(path);
    }
    std::string said;
};

TEST_F(LogIndexTest, goldenLogGetsGoldenIndex) {
    LogBytes log;
    log.heading(1000, 90.0).attitude(1000, 0).attitude(1040, 2).heading(1080, 91.5);
    ASSERT_EQ(log.size(), 96u + 2 * 24 + 2 * 92);
    EXPECT_EQ(Bytes(log.bytes().begin() + 96, log.bytes().begin() + 120),
              fromHex("E8030000 02000000 0C000000 0000000000805640 E8030000"));
    Bytes wanted = log.bytes();
    const Bytes index = fromHex("04000000 00000000 60000000 00000000 78000000 28000000 D4000000 50000000 30010000"
                                "01000000 02000000");
    wanted.insert(wanted.end(), index.begin(), index.end());
    const Bytes offset = fromHex("48010000");
    std::copy(offset.begin(), offset.end(), wanted.begin() + 4);
    EXPECT_EQ(indexed(log.bytes()), wanted);
    EXPECT_EQ(indexed(wanted), wanted) << "a second time changes nothing";
    EXPECT_EQ(said, "Error: Index already calculated.\n");
}

TEST_F(LogIndexTest, theWriterMakesTheSameBytes) {
    LogWriter writer(path);
    Heading_Data heading(90.0, 1000);
    int length = 0;
    const void* form = heading.serialize(&length);
    writer.add(1000, ISensorData::Heading, form, static_cast<uint32_t>(length));
    writer.flush();
    EXPECT_EQ(LogBytes::load(path), LogBytes().heading(1000, 90.0).bytes()) << "a crash leaves it like this";
    EXPECT_TRUE(LogWriter(path).fail()) << "somebody writes it";
    testing::internal::CaptureStdout();
    calculateLogIndex(path);
    EXPECT_NE(testing::internal::GetCapturedStdout().find("still being recorded"), std::string::npos);
    EXPECT_EQ(LogBytes::load(path), LogBytes().heading(1000, 90.0).bytes());
    EXPECT_FALSE(writer.fail());
}

TEST_F(LogIndexTest, logsThatCannotBeIndexedStayAsTheyAre) {
    const Bytes later = LogBytes(2).heading(0, 1.0).bytes();
    EXPECT_EQ(indexed(later), later);
    EXPECT_EQ(said, "Error: LogFileVersion 2 not supported.\n");
    const Bytes manyTypes = LogBytes(1, 0x40000000).heading(0, 1.0).bytes();
    EXPECT_EQ(indexed(manyTypes), manyTypes);
    const Bytes tiny = fromHex("01000000 000000");
    EXPECT_EQ(indexed(tiny), tiny);
    testing::internal::CaptureStdout();
    calculateLogIndex(folder.path("none.dat"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Error: Unable to open LogFile: " + folder.path("none.dat") + "\n");
}

TEST_F(LogIndexTest, aLogCutAnywhereHasTheWholeRecordsBeforeTheCut) {
    LogBytes log;
    log.heading(0, 1.0).attitude(40, 1).heading(80, 2.0);
    for (size_t length = 0; length <= log.size(); ++length) {
        Bytes cut = log.bytes();
        cut.resize(length);
        indexed(cut);
        const size_t whole = length < 120 ? 0 : length < 212 ? 1 : length < 236 ? 2 : 3;
        testing::internal::CaptureStdout();
        LogFile file(path);
        testing::internal::GetCapturedStdout();
        EXPECT_EQ(file.index().samples.size(), whole) << length;
        LogFile::Record record;
        for (size_t sample = 0; sample < whole; ++sample)
            EXPECT_TRUE(file.read(sample, record)) << length;
    }
}

TEST_F(LogIndexTest, anIndexThatACrashCutShortIsMadeAnew) {
    LogBytes log;
    for (uint32_t i = 0; i < 20; ++i)
        log.heading(500 + 40 * i, i);
    const Bytes whole = indexed(log.bytes());
    for (const size_t length : {log.size() + 12u, log.size() + 60u, static_cast<uint32_t>(whole.size())}) {
        Bytes crashed = whole;
        crashed.resize(length);
        std::fill(crashed.begin() + 4, crashed.begin() + 8, uint8_t{0});
        EXPECT_EQ(indexed(crashed), whole) << length;
    }
}

TEST_F(LogIndexTest, lyingLengthsCountsAndOffsetsAreNotBelieved) {
    LogBytes log;
    log.heading(0, 1.0).number(40).number(2).number(0xfffffff0).append(Bytes(50));
    indexed(log.bytes());
    EXPECT_EQ(LogFile(path).index().samples.size(), 1u) << "a length beyond the end";

    const auto open = [&](const LogBytes& bytes, uint32_t indexOffset) {
        Bytes all = bytes.bytes();
        ByteWriter(all.data() + 4, 4).little(indexOffset);
        LogBytes::saveBytes(path, all);
        return LogFile(path).index().samples.size();
    };
    LogBytes one;
    one.heading(0, 1.0);
    const uint32_t end = one.size();
    EXPECT_EQ(open(LogBytes(one).number(1).number(0).number(96).number(0), end), 1u);
    EXPECT_EQ(open(LogBytes(one).number(0x20000001).number(0).number(96).number(0), end), 0u) << "count";
    EXPECT_EQ(open(LogBytes(one).number(1).number(0).number(96).number(1).number(7), end), 0u) << "key";
    EXPECT_EQ(open(LogBytes(one).number(1).number(0).number(96), end), 0u) << "no keys";
    EXPECT_EQ(open(LogBytes(one).number(1).number(0).number(96).number(0), 0xffffffff), 0u) << "offset";
    EXPECT_EQ(open(LogBytes(one).number(1).number(0).number(96).number(0), 4), 0u) << "offset in the header";

    Bytes wild = LogBytes(one).number(1).number(0).number(0x7fffff00).number(0).bytes();
    ByteWriter(wild.data() + 4, 4).little(end);
    LogBytes::saveBytes(path, wild);
    LogFile file(path);
    LogFile::Record record;
    ASSERT_EQ(file.index().samples.size(), 1u);
    EXPECT_FALSE(file.read(0, record));
}

TEST_F(LogIndexTest, timesFollowTheClockAcrossItsWrapByTheFormula) {
    LogBytes log;
    log.heading(0xffffff00, 1.0).heading(0xffffff80, 2.0).heading(0x10, 3.0);
    indexed(log.bytes());
    const LogFile file(path);
    ASSERT_EQ(file.index().samples.size(), 3u);
    EXPECT_EQ(file.index().samples[1].timeMs, 0x80u);
    EXPECT_EQ(file.index().samples[2].timeMs, 0x20u);
}

TEST(LogIndexFind, givesTheFirstOfTheNearestSamplesInEvenLogs) {
    LogIndex index;
    for (uint32_t i = 0; i < 1000; ++i)
        for (uint32_t twin = 0; twin < 3; ++twin)
            index.samples.push_back({40 * i, 0});
    for (uint32_t play = 0; play < 40000; play += 7) {
        const uint32_t nearest = std::min((play + 20) / 40, 999u);
        EXPECT_EQ(index.find(1500, play), 3 * nearest) << play;
    }
}

TEST(LogIndexFind, pausesOfTheRecordingLeaveItAtTheNearest) {
    std::mt19937 random(4711);
    LogIndex index;
    for (uint32_t i = 0, timeMs = 0; i < 5000; ++i) {
        index.samples.push_back({timeMs, 0});
        timeMs += random() % 500 == 0 ? 3600000 : 20 + random() % 40;
    }
    for (int round = 0; round < 5000; ++round) {
        const uint32_t play = static_cast<uint32_t>(random() % (index.endMs() + 1));
        const size_t found = index.find(random() % index.samples.size(), play);
        const auto away = [&](size_t sample) { return std::abs(int64_t{index.samples[sample].timeMs} - play); };
        size_t nearest = 0;
        for (size_t sample = 0; sample < index.samples.size(); ++sample)
            if (away(sample) < away(nearest))
                nearest = sample;
        EXPECT_EQ(away(found), away(nearest)) << play;
    }
}

TEST(LogIndexFind, timesInAnyOrderEndSomewhere) {
    std::mt19937 random(1);
    LogIndex index;
    for (int i = 0; i < 100; ++i)
        index.samples.push_back({static_cast<uint32_t>(random()), 0});
    for (int round = 0; round < 1000; ++round)
        EXPECT_LT(index.find(random() % 100, random()), 100u);
}

} // namespace
} // namespace skyvane
