#include "chart/elements/ElementKinds.h"
#include "chart/elements/GoldenRecords.h"
#include "core/ini/IniFile.h"

#include <gtest/gtest.h>
#include <random>

namespace skyvane {

namespace {

class EachKind : public testing::TestWithParam<int> {
protected:
    const std::string& golden() const { return goldenRecords()[static_cast<size_t>(GetParam())]; }
};

INSTANTIATE_TEST_SUITE_P(ElementForms, EachKind, testing::Range(0, 9),
                         [](const auto& kind) { return elementKinds[kind.param].descriptor; });

TEST_P(EachKind, recordComesBackByteForByte) {
    const auto element = readRecord(golden());
    ASSERT_TRUE(element);
    EXPECT_EQ(element->getType(), GetParam());
    EXPECT_EQ(recordOf(*element), golden());
    EXPECT_EQ(static_cast<unsigned char>(staticDataOf(*element)[0]), GetParam());
}

// In the middle of a buffer it takes its own bytes and no more, at any alignment.
TEST_P(EachKind, recordWithinABuffer) {
    for (unsigned before = 0; before < 8; ++before) {
        const std::string buffer = std::string(before, 'x') + golden().substr(4) + "tail";
        unsigned position = before;
        const auto element = createChartElement(GetParam());
        ASSERT_TRUE(element->readFromBuffer(buffer.data(), position, static_cast<unsigned>(buffer.size())));
        EXPECT_EQ(position, buffer.size() - 4);
        EXPECT_EQ(recordOf(*element), golden());
    }
}

TEST_P(EachKind, aShortRecordLeavesDefaults) {
    const std::string fresh = recordOf(*createChartElement(GetParam()));
    for (size_t length = 0; length < golden().size() - 4; ++length) {
        const std::string exact = golden().substr(4, length); // so that a sanitizer sees a read beyond
        const auto element = readRecord(golden());
        unsigned position = 0;
        EXPECT_FALSE(element->readFromBuffer(exact.data(), position, static_cast<unsigned>(length))) << length;
        EXPECT_EQ(position, 0u);
        EXPECT_EQ(recordOf(*element), fresh) << length;
    }
    unsigned beyond = 9;
    EXPECT_FALSE(createChartElement(GetParam())->readFromBuffer(golden().data(), beyond, 8));
}

TEST_P(EachKind, hugeCountsAndLengthsAreRefused) {
    const size_t size = golden().size();
    for (size_t at = 4; at + 4 <= size; ++at) {
        std::string record = golden();
        record.replace(at, 4, "\xff\xff\xff\xff");
        const auto element = readRecord(record); // it may have been a plain number
        EXPECT_TRUE(!element || recordOf(*element).size() <= size) << at;
    }
}

TEST_P(EachKind, coordinatesThatAreNoNumbersAreRefused) {
    const std::string known = bytesOf(f42_5);
    size_t found = 0;
    for (size_t at = golden().find(known); at != std::string::npos; at = golden().find(known, at + 1), ++found)
        for (const char* bad : {"00 00 00 00 00 00 F0 7F", "00 00 00 00 00 00 F0 FF", "00 00 00 00 00 00 F8 7F"}) {
            std::string record = golden();
            record.replace(at, known.size(), bytesOf(bad));
            EXPECT_FALSE(readRecord(record)) << bad << " at " << at;
        }
    EXPECT_GT(found, 0u);
}

TEST_P(EachKind, flippedBytesNeverChangeAgain) {
    const unsigned seed = 77 + static_cast<unsigned>(GetParam());
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 3000; ++round) {
        std::string record = golden();
        for (int flips = 1 + static_cast<int>(random() % 3); flips > 0; --flips)
            record[4 + random() % (record.size() - 4)] = static_cast<char>(random());
        const auto element = readRecord(record);
        if (!element)
            continue;
        const std::string written = recordOf(*element);
        const auto again = readRecord(written);
        ASSERT_TRUE(again) << round;
        ASSERT_EQ(recordOf(*again), written) << round;
        element->createHTI(round % 2 == 0);
        element->getIndicatedLabel(true, true);
    }
}

TEST_P(EachKind, documentComesBack) {
    const auto element = readRecord(golden());
    IniFile document;
    document.setFromString(element->createDescriptionString().c_str());
    EXPECT_EQ(document.get("", "Type"), elementKinds[GetParam()].descriptor);
    const auto read = createChartElement(GetParam());
    read->setFromIni(&document);
    EXPECT_EQ(recordOf(*read), golden());
}

TEST_P(EachKind, anEmptyDocumentGivesDefaultsAndStaysEmpty) {
    IniFile empty;
    const auto element = readRecord(golden());
    element->setFromIni(&empty);
    EXPECT_EQ(recordOf(*element), recordOf(*createChartElement(GetParam())));
    EXPECT_EQ(empty.toString(), IniFile().toString());
    const auto again = readRecord(golden());
    again->setDefaults();
    EXPECT_EQ(recordOf(*again), recordOf(*element));
}

TEST_P(EachKind, hostileDocuments) {
    const auto element = readRecord(golden());
    IniFile document;
    element->writeToIni(&document);
    for (const char* count : {"RunCnt", "FreqCnt", "VCount", "posCount"})
        for (const char* value : {"4294967295", "-1", "99999999999999", "x"}) {
            document.set("", count, value);
            element->setFromIni(&document);
        }
    const size_t size = recordOf(*element).size();
    EXPECT_LE(size, golden().size());
    document.set("", "Long", "nan");
    document.set("", "Lat", "1e999");
    element->setFromIni(&document);
    const ChartPosition position = element->getPosition();
    EXPECT_LT(position.longitude, 400.0);
    EXPECT_LT(position.latitude, 400.0);
    EXPECT_TRUE(readRecord(recordOf(*element))) << "what a document gives, a record can hold";
}

TEST(ElementForms, factories) {
    const ElementFactories factories = makeElementFactories();
    for (int type = 0; type < IChartElement::TypeCount; ++type) {
        EXPECT_EQ(factories[static_cast<size_t>(type)]->Create(nullptr)->getType(), type);
        EXPECT_EQ(factories[static_cast<size_t>(type)]->getStringDescriptor(), elementKinds[type].descriptor);
    }
    EXPECT_EQ(factories[1]->getStringDescriptor(), "AIRWAY_SEGMENT");
    EXPECT_EQ(factories[1]->getName(), "Airway");
    EXPECT_FALSE(createChartElement(9));
    EXPECT_FALSE(createChartElement(-1));
}

} // namespace

} // namespace skyvane
