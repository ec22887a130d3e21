#include "sensors/records/GPS_Data.h"

#include <iostream>

namespace skyvane {
namespace {

/// Visits the fields of a record in the order of its byte form. Offsets: hour 0, minute 4, second 8, millisecond 12,
/// time stamp 16, latitude 20, longitude 28, fix quality 36, satellite count 40, altitude 44, fix type 52, dilutions
/// 56, 64 and 72, status 80, day 84, month 88, year 92, ground speed 96, ground track 104, magnetic variation 112,
/// flags from 120.
template <class Record, class Visitor>
void visitFields(Record& record, Visitor&& visit) {
    visit(record.hour);
    visit(record.minute);
    visit(record.second);
    visit(record.millisecond);
    visit(record.timeStamp);
    visit(record.latitude);
    visit(record.longitude);
    visit(record.fixQuality);
    visit(record.satelliteCount);
    visit(record.altitude);
    visit(record.fixType);
    visit(record.pdop);
    visit(record.hdop);
    visit(record.vdop);
    visit(record.status);
    visit(record.day);
    visit(record.month);
    visit(record.year);
    visit(record.groundSpeed);
    visit(record.groundTrack);
    visit(record.magneticVariation);
    visit(record.timeAvailable);
    visit(record.positionAvailable);
    visit(record.altitudeAvailable);
    visit(record.dilutionOfPrecisionAvailable);
    visit(record.dateAvailable);
    visit(record.speedAvailable);
    visit(record.groundTrackAvailable);
    visit(record.magneticVariationAvailable);
}

struct Writer {
    ByteWriter& out;
    void operator()(bool flag) { out.little(static_cast<uint8_t>(flag ? 1 : 0)); }
    void operator()(int number) { out.little(static_cast<int32_t>(number)); }
    void operator()(unsigned number) { out.little(static_cast<uint32_t>(number)); }
    void operator()(double number) { out.little(number); }
};

struct Reader {
    ByteReader& in;
    void operator()(bool& flag) { flag = in.little<uint8_t>() != 0; }
    void operator()(int& number) { number = in.little<int32_t>(); }
    void operator()(unsigned& number) { number = in.little<uint32_t>(); }
    void operator()(double& number) { number = in.little<double>(); }
};

} // namespace

void GPS_Data::writeForm(ByteWriter& out) const {
    visitFields(*this, Writer{out});
}

void GPS_Data::readForm(ByteReader& in) {
    visitFields(*this, Reader{in});
}

void GPS_Data::Print() {
    for (const wchar_t character : toString()) {
        // The only character beyond ASCII is the degree sign.
        if (character < 0x80)
            std::cout << static_cast<char>(character);
        else
            std::cout << "\xC2\xB0";
    }
}

} // namespace skyvane
