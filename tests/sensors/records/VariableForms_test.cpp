#include "sensors/FormText.h"
#include "sensors/records/Raw_Data.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/records/UATUplink_Data.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

constexpr char One[] = "000000000000F03F";
constexpr char Zero[] = "0000000000000000";

std::string repeated(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

std::string defaultGpsForm() {
    return "FFFFFFFF FFFFFFFF FFFFFFFF FFFFFFFF 00000000 000000000000F0BF 000000000000F0BF 00000000 FFFFFFFF"
           "000000000000F0BF 01000000 000000000000F0BF 000000000000F0BF 000000000000F0BF 00000000"
           "FFFFFFFF FFFFFFFF FFFFFFFF 000000000000F0BF 000000000000F0BF 000000008087C3C0 0000000000000000";
}

std::string rawTail() {
    const std::string unit = std::string(One) + repeated(Zero, 3) + One + repeated(Zero, 3) + One;
    return std::string(One) + "0000000000000040" + "000000000000F0BF" + repeated(Zero, 6) + "01 00 01 01" + unit +
           repeated(Zero, 9) + One + "0000000000000040";
}

Raw_Data rawSample() {
    Raw_Data raw;
    raw.text = "$G";
    raw.acc = Raw_Data::Vector(1.0, 2.0, -1.0);
    raw.accAvail = raw.magAvail = raw.gpsAvail = true;
    for (int i = 0; i < 3; ++i)
        raw.delta(i, i) = 0.0;
    raw.deltaT0 = 1.0;
    raw.deltaT1 = 2.0;
    return raw;
}

TEST(VariableForms, rawIsLedByItsTwoVariableParts) {
    const Bytes golden = fromHex("80000000" + defaultGpsForm() + "02000000 2447" + rawTail());
    ASSERT_EQ(golden.size(), 244u + 128u + 2u);
    Raw_Data raw = rawSample();
    EXPECT_EQ(formOf(raw), golden);
    Raw_Data read;
    readForm(read, golden);
    EXPECT_EQ(formOf(read), golden);
    EXPECT_EQ(read.text, "$G");
    EXPECT_EQ(read.acc.Z, -1.0);
    EXPECT_FALSE(read.gyrAvail);
}

TEST(VariableForms, rawRefusesLengthsThatDontFit) {
    Raw_Data record = rawSample();
    const Bytes before = formOf(record);
    Raw_Data otherSample;
    const Bytes other = formOf(otherSample);
    for (size_t length = 0; length < other.size(); ++length)
        readForm(record, Bytes(other.begin(), other.begin() + static_cast<std::ptrdiff_t>(length)));
    for (const char* gpsLength : {"FFFFFFFF", "00000080", "FFFFFF7F", "75010000"})
        readForm(record, fromHex(gpsLength + defaultGpsForm() + "00000000" + rawTail()));
    for (const char* textLength : {"FFFFFFFF", "00000080", "FFFFFF7F", "01000000"})
        readForm(record, fromHex("80000000" + defaultGpsForm() + textLength + rawTail()));
    record.deserialize(nullptr, 400);
    EXPECT_EQ(formOf(record), before);
}

TEST(VariableForms, rawOutgrowsItsFirstBuffer) {
    Raw_Data raw = rawSample();
    raw.text.assign(100000, 'x');
    Raw_Data read;
    readForm(read, formOf(raw));
    EXPECT_EQ(read.text.size(), 100000u);
    EXPECT_EQ(formOf(read), formOf(raw));
}

std::string elementForm(const std::string& address, const std::string& name) {
    return address + One + "0000000000000040" + "01000000 02000000 03000000 04000000 05000000 0000803F" + name;
}

TEST(VariableForms, trafficIsAVersionAndBlocksInOrderOfAddress) {
    Traffic_Data traffic;
    EXPECT_EQ(formOf(traffic), fromHex("00"));
    traffic.version = 7;
    for (const uint32_t address : {0x00ABCDEFu, 0x10u}) {
        auto element = std::make_unique<TrafficElement>();
        element->icaoAddress = address;
        element->longitude = 1.0, element->latitude = 2.0;
        element->altitude = 1, element->velocity = 2, element->climbRate = 3, element->squawk = 4;
        element->capabilityIndex = 5;
        element->track = 1.0f;
        element->name = address == 0x10u ? "AB" : "ABCDEFGHIJ";
        traffic.elements[address] = std::move(element);
    }
    const Bytes golden =
        fromHex("07" + elementForm("10000000", "4142 00000000000000") + elementForm("EFCDAB00", "414243444546474849"));
    EXPECT_EQ(formOf(traffic), golden);
    Traffic_Data read;
    readForm(read, golden);
    EXPECT_EQ(formOf(read), golden);
    EXPECT_EQ(read.elements.at(0x10u)->name, "AB");
    EXPECT_EQ(read.elements.at(0xABCDEFu)->name, "ABCDEFGHI");
}

TEST(VariableForms, trafficKeepsWholeBlocksAndTheLastOfAnAddress) {
    const std::string first = elementForm("10000000", "41 0000000000000000");
    const std::string second = elementForm("10000000", "42 0000000000000000");
    const std::string third = elementForm("11000000", "43 0000000000000000");
    Traffic_Data read;
    testing::internal::CaptureStdout();
    Bytes form = fromHex("01" + first + second + third);
    form.pop_back();
    readForm(read, form);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Error: Wrong traffic format.\n");
    ASSERT_EQ(read.elements.size(), 1u);
    EXPECT_EQ(read.elements.at(0x10u)->name, "B");
    readForm(read, fromHex("02"));
    EXPECT_TRUE(read.elements.empty());
    EXPECT_EQ(read.version, 2);
}

TEST(VariableForms, uplinkIsACountAndMessagesWithTheirLengths) {
    UATUplink_Data uplink;
    EXPECT_EQ(formOf(uplink), fromHex("00000000"));
    uplink.messages = {{1, 2, 3}, {}, {0xFF}};
    const Bytes golden = fromHex("03000000 03000000 010203 00000000 01000000 FF");
    EXPECT_EQ(formOf(uplink), golden);
    UATUplink_Data read;
    readForm(read, golden);
    EXPECT_EQ(read.messages, uplink.messages);
    readForm(read, Bytes(golden.begin(), golden.end() - 1));
    EXPECT_EQ(read.messages, (std::vector<Bytes>{{1, 2, 3}, {}}));
    readForm(read, fromHex("FFFFFFFF 01000000 AA FFFFFFFF BB"));
    EXPECT_EQ(read.messages, (std::vector<Bytes>{{0xAA}}));
    readForm(read, fromHex("000000"));
    EXPECT_EQ(read.messages.size(), 1u) << "a form without a count changes nothing";
}

} // namespace
} // namespace skyvane
