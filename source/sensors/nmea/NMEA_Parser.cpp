#include "sensors/nmea/NMEA_Parser.h"

#include "core/text/Numbers.h"
#include "core/time/Time.h"
#include "sensors/nmea/NmeaFields.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr size_t NameBytes = 5; ///< A talker of two letters and a kind of three.
constexpr size_t TalkerBytes = 2;

/// A look at the name, so that most of what receivers say is never taken apart.
bool hasOwnName(std::string_view text) {
    if (text.size() <= NameBytes || text[NameBytes] != ',')
        return false;
    const std::string_view kind = text.substr(TalkerBytes, NameBytes - TalkerBytes);
    return kind == "GGA" || kind == "GSA" || kind == "RMC";
}

} // namespace

NMEA_Parser::NMEA_Parser(NMEA_VERSION version, int timeoutMs)
    : version_(version), timeoutMs_(static_cast<unsigned>(std::max(timeoutMs, 0))), lastAcceptedMs_(MilliSecs()) {}

bool NMEA_Parser::takeSentence(char end) {
    const bool isNew = (additional_ || hasOwnName(sentence_.text())) && sentence_.split() && parseSentence();
    sentence_.begin(end);
    return isNew;
}

bool NMEA_Parser::parseSentence() {
    const std::string_view name = sentence_.token(0);
    const size_t count = sentence_.count();
    if (name.size() != NameBytes || !takesTalker(name.substr(0, TalkerBytes)))
        return parseOther();
    const std::string_view kind = name.substr(TalkerBytes);
    const size_t gsaCount = version_ == GnSystem ? 19 : 18;
    const size_t rmcMost = version_ == GnSystem ? 14 : 13;
    if (kind == "GGA" && takesCount(count, 15, 15))
        return parseGga();
    if (kind == "GSA" && takesCount(count, gsaCount, gsaCount))
        return parseGsa();
    if (kind == "RMC" && takesCount(count, 12, rmcMost))
        return parseRmc();
    return parseOther();
}

bool NMEA_Parser::takesTalker(std::string_view talker) const {
    return (talker == "GP" && (version_ == Gp || version_ == GpAndGn)) || (talker == "GN" && version_ != Gp);
}

bool NMEA_Parser::takesCount(size_t count, size_t least, size_t most) const {
    return count >= least && (count <= most || version_ == GpAndGn);
}

bool NMEA_Parser::accept(bool isValid) {
    const unsigned now = MilliSecs();
    const bool isLate = TimeDiff(now, lastAcceptedMs_) >= timeoutMs_;
    if (!isValid && !isLate)
        return false;
    if (isLate && timeoutMs_ > 0)
        forget();
    lastAcceptedMs_ = now;
    return true;
}

/// The values stay, but each sentence has to say anew that they count.
void NMEA_Parser::forget() {
    gps_.fixQuality = 0;
    gps_.fixType = 1;
    gps_.status = 0;
    gps_.timeAvailable = gps_.dateAvailable = gps_.positionAvailable = gps_.altitudeAvailable = false;
    gps_.dilutionOfPrecisionAvailable = gps_.speedAvailable = gps_.groundTrackAvailable = false;
}

bool NMEA_Parser::parseGga() {
    enum { Time = 1, Position = 2, Quality = 6, Satellites = 7, Hdop = 8, Altitude = 9, AltitudeUnit = 10 };
    const int quality = std::max(toInt(sentence_.token(Quality)), 0);
    if (!accept(quality >= 1))
        return false;
    parseTime(sentence_.token(Time));
    gps_.fixQuality = quality;
    if (quality != 0 && !sentence_.token(Position).empty() && !sentence_.token(Position + 2).empty())
        parsePosition(Position);
    gps_.satelliteCount = toInt(sentence_.token(Satellites));
    gps_.hdop = toDouble(sentence_.token(Hdop));
    const std::string_view altitude = sentence_.token(Altitude);
    const bool isKnown = quality != 0 && !altitude.empty() && sentence_.token(AltitudeUnit) == "M";
    if (isKnown)
        gps_.altitude = toDouble(altitude);
    gps_.altitudeAvailable = isKnown && gps_.altitude != 0.0;
    return true;
}

bool NMEA_Parser::parseGsa() {
    enum { Type = 2, Pdop = 15, Hdop = 16, Vdop = 17 };
    const int type = toInt(sentence_.token(Type));
    if (!accept(type >= 2))
        return false;
    gps_.fixType = type;
    if (type >= 2)
        gps_.positionAvailable = true;
    if (type == 3)
        gps_.altitudeAvailable = true;
    gps_.dilutionOfPrecisionAvailable =
        !sentence_.token(Pdop).empty() && !sentence_.token(Hdop).empty() && !sentence_.token(Vdop).empty();
    if (!gps_.dilutionOfPrecisionAvailable)
        return true;
    gps_.pdop = toDouble(sentence_.token(Pdop));
    gps_.hdop = toDouble(sentence_.token(Hdop));
    gps_.vdop = toDouble(sentence_.token(Vdop));
    return true;
}

bool NMEA_Parser::parseRmc() {
    enum { Time = 1, Status = 2, Position = 3, Speed = 7, Track = 8, Date = 9 };
    const bool isValid = sentence_.token(Status) == "A";
    if (!accept(isValid))
        return false;
    parseTime(sentence_.token(Time));
    gps_.status = isValid ? 1 : 0;
    if (isValid && !sentence_.token(Position).empty() && !sentence_.token(Position + 2).empty())
        parsePosition(Position);
    gps_.speedAvailable = isValid && !sentence_.token(Speed).empty();
    if (gps_.speedAvailable)
        gps_.groundSpeed = toDouble(sentence_.token(Speed));
    gps_.groundTrackAvailable = isValid && !sentence_.token(Track).empty();
    if (gps_.groundTrackAvailable)
        gps_.groundTrack = toDouble(sentence_.token(Track));
    parseDate(sentence_.token(Date));
    gps_.magneticVariationAvailable = false;
    return true;
}

bool NMEA_Parser::parseOther() {
    if (!additional_)
        return false;
    handedOn_.resize(sentence_.count());
    for (size_t i = 0; i < handedOn_.size(); ++i)
        handedOn_[i] = sentence_.token(i);
    return additional_->parse(&handedOn_, true);
}

void NMEA_Parser::parseTime(std::string_view text) {
    const std::optional<NmeaTime> time = readNmeaTime(text);
    gps_.timeAvailable = time.has_value();
    if (!time)
        return;
    gps_.hour = time->hour;
    gps_.minute = time->minute;
    gps_.second = time->second;
    gps_.millisecond = time->millisecond;
    gps_.timeStamp =
        static_cast<unsigned>(time->second * 1000 + time->millisecond + time->minute * 60000 + time->hour * 3600000);
}

void NMEA_Parser::parseDate(std::string_view text) {
    gps_.dateAvailable = text.size() > 5;
    if (!gps_.dateAvailable)
        return;
    gps_.day = toInt(text.substr(0, 2));
    gps_.month = toInt(text.substr(2, 2));
    gps_.year = toInt(text.substr(4));
}

/// Latitude, its hemisphere, longitude, its hemisphere. Half a position is none.
void NMEA_Parser::parsePosition(size_t first) {
    const auto latitude = readNmeaLatitude(sentence_.token(first), sentence_.token(first + 1));
    const auto longitude = readNmeaLongitude(sentence_.token(first + 2), sentence_.token(first + 3));
    gps_.positionAvailable = latitude && longitude;
    if (!gps_.positionAvailable)
        return;
    gps_.latitude = *latitude;
    gps_.longitude = *longitude;
}

} // namespace skyvane
