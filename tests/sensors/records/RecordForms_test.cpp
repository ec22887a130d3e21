#include "sensors/FormText.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/AirSpeed_Data.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/AngleOfAttack_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/ExtendedHeading_Data.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/LocGs_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/Pressure_Data.h"
#include "sensors/records/Temperature_Data.h"
#include "sensors/records/TurnRate_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

/// The record writes exactly these bytes, another record takes them over, and no shorter form changes a record.
template <class Record>
Record expectForm(Record record, Record other, const std::string& hex) {
    const Bytes golden = fromHex(hex);
    EXPECT_EQ(formOf(record), golden);
    const Bytes otherForm = formOf(other);
    for (size_t length = 0; length < golden.size(); ++length)
        readForm(other, Bytes(golden.begin(), golden.begin() + static_cast<std::ptrdiff_t>(length)));
    EXPECT_EQ(formOf(other), otherForm) << "a short form changed the record";
    readForm(other, golden);
    EXPECT_EQ(formOf(other), golden);
    return other;
}

TEST(RecordForms, scalarsAreADoubleAndATimeStamp) {
    const std::string form = "000000000000F03F 04030201";
    const unsigned stamp = 0x01020304;
    EXPECT_EQ(expectForm(Heading_Data(1.0, stamp), Heading_Data(), form).value, 1.0);
    EXPECT_EQ(expectForm(Altitude_Data(1.0, stamp), Altitude_Data(), form).timeStamp, stamp);
    expectForm(GroundSpeed_Data(1.0, stamp), GroundSpeed_Data(), form);
    expectForm(VerticalSpeed_Data(1.0, stamp), VerticalSpeed_Data(), form);
    expectForm(TurnRate_Data(1.0, stamp), TurnRate_Data(), form);
    expectForm(AirSpeed_Data(1.0, stamp), AirSpeed_Data(), form);
    expectForm(Temperature_Data(1.0, false, stamp), Temperature_Data(), form);
    expectForm(Altitude_Data(), Altitude_Data(1.0, 1), "0000000000007940 00000000");
    expectForm(Pressure_Data(), Pressure_Data(1.0, true, 1), "0000000000C072C0 00000000");
}

TEST(RecordForms, readingKeepsWhereAPressureWasMeasured) {
    Pressure_Data outside(1013.25, false, 7);
    Pressure_Data inside;
    readForm(inside, formOf(outside));
    EXPECT_EQ(inside.getType(), ISensorData::InsidePressure);
    EXPECT_EQ(inside.value, 1013.25);
    EXPECT_EQ(Temperature_Data(1.0, false, 7).getType(), ISensorData::OutsideTemperature);
}

TEST(RecordForms, positionLeadsWithTheLongitude) {
    const Position_Data position =
        expectForm(Position_Data(1.0, 2.0, 3), Position_Data(), "000000000000F03F 0000000000000040 03000000");
    EXPECT_EQ(position.longitude, 1.0);
    EXPECT_EQ(position.latitude, 2.0);
    expectForm(Position_Data(), Position_Data(1, 1, 1), "00000000000024C0 00000000000024C0 00000000");
}

TEST(RecordForms, accelerationIsXYZ) {
    const Acceleration_Data read = expectForm(Acceleration_Data(1.0, 2.0, -1.0, 9), Acceleration_Data(),
                                              "000000000000F03F 0000000000000040 000000000000F0BF 09000000");
    EXPECT_EQ(read.z, -1.0);
}

TEST(RecordForms, attitudeIsItsMatrixRowByRow) {
    Matrix3x3 matrix;
    matrix(0, 2) = 2.0;
    matrix(2, 0) = -1.0;
    const Attitude_Data read =
        expectForm(Attitude_Data(matrix, 5, Attitude_Data::ResetOrientationMatrix), Attitude_Data(),
                   "000000000000F03F 0000000000000000 0000000000000040"
                   "0000000000000000 000000000000F03F 0000000000000000"
                   "000000000000F0BF 0000000000000000 000000000000F03F 03000000 05000000");
    EXPECT_EQ(read.matrix(2, 0), -1.0);
    EXPECT_STREQ(read.resetKindText(), "Reset Orientation Matrix");
}

TEST(RecordForms, extendedHeadingIsTwoFloats) {
    expectForm(ExtendedHeading_Data(1.0f, -2.0f, 6), ExtendedHeading_Data(), "0000803F 000000C0 06000000");
    EXPECT_TRUE(std::isnan(ExtendedHeading_Data().trueHeading));
    EXPECT_TRUE(std::isnan(ExtendedHeading_Data().magneticHeading));
}

TEST(RecordForms, angleOfAttackHasOneByteForItsFlag) {
    const AngleOfAttack_Data read =
        expectForm(AngleOfAttack_Data(1.0f, 2.0f, false, 6), AngleOfAttack_Data(), "0000803F 00000040 06000000 00");
    EXPECT_EQ(read.inParts, 0u);
    expectForm(AngleOfAttack_Data(), AngleOfAttack_Data(1, 1, false, 1), "00000000 0000803F 00000000 01");
    AngleOfAttack_Data wide;
    wide.inParts = 0x101;
    EXPECT_EQ(formOf(wide).back(), 1);
}

TEST(RecordForms, localizerAndGlideslopeAreTwoAmplitudes) {
    const LocGs_Data read =
        expectForm(LocGs_Data(1.0f, 2.0f, true), LocGs_Data(0.5f, 0.5f, false), "0000803F 00000040");
    EXPECT_EQ(LocGs_Data(read).getType(), ISensorData::Glideslope);
    EXPECT_EQ(LocGs_Data(true).getType(), ISensorData::Localizer);
}

TEST(RecordForms, gpsFieldsStandAtTheirOffsets) {
    GPS_Data gps;
    gps.hour = 1, gps.minute = 2, gps.second = 3, gps.millisecond = 4;
    gps.timeStamp = 5;
    gps.latitude = 1.0, gps.longitude = 2.0;
    gps.fixQuality = 6, gps.satelliteCount = 7;
    gps.altitude = -1.0;
    gps.fixType = 3;
    gps.pdop = 1.0, gps.hdop = 2.0, gps.vdop = -1.0;
    gps.status = 8, gps.day = 9, gps.month = 10, gps.year = 2026;
    gps.groundSpeed = 1.0, gps.groundTrack = 2.0, gps.magneticVariation = -1.0;
    gps.timeAvailable = gps.dilutionOfPrecisionAvailable = gps.magneticVariationAvailable = true;
    const GPS_Data read = expectForm(gps, GPS_Data(),
                                     "01000000 02000000 03000000 04000000 05000000"
                                     "000000000000F03F 0000000000000040 06000000 07000000 000000000000F0BF 03000000"
                                     "000000000000F03F 0000000000000040 000000000000F0BF 08000000"
                                     "09000000 0A000000 EA070000 000000000000F03F 0000000000000040 000000000000F0BF"
                                     "01 00 00 01 00 00 00 01");
    EXPECT_EQ(read.year, 2026);
    EXPECT_TRUE(read.magneticVariationAvailable);
    EXPECT_FALSE(read.groundTrackAvailable);

    GPS_Data unknown;
    EXPECT_EQ(formOf(unknown), fromHex("FFFFFFFF FFFFFFFF FFFFFFFF FFFFFFFF 00000000"
                                       "000000000000F0BF 000000000000F0BF 00000000 FFFFFFFF 000000000000F0BF 01000000"
                                       "000000000000F0BF 000000000000F0BF 000000000000F0BF 00000000"
                                       "FFFFFFFF FFFFFFFF FFFFFFFF 000000000000F0BF 000000000000F0BF 000000008087C3C0"
                                       "00 00 00 00 00 00 00 00"));
}

TEST(RecordForms, gpsTextsCarryIntoWholeDegrees) {
    GPS_Data gps;
    gps.latitude = -41.25;
    gps.longitude = 9.0 - 0.0001 / 60.0;
    EXPECT_EQ(gps.calcLatitudeString(), L"41\u00B0 15.000' S");
    EXPECT_EQ(gps.calcLongitudeString(), L"9\u00B0 0.000' E");
    gps.latitude = std::nan("");
    EXPECT_EQ(gps.calcLatitudeString(), L"-");
    EXPECT_NE(gps.toString().find(L"#Satellites: -1\n"), std::wstring::npos);
}

} // namespace
} // namespace skyvane
