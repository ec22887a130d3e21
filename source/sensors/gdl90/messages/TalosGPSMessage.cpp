#include "sensors/gdl90/messages/TalosGPSMessage.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

namespace {

constexpr int MillisecondsPerHighUnit = 255; // and not 256: that is how the devices count

} // namespace

void TalosGPSMessage::readFromRaw(const MessageBytes& raw) {
    readHead(raw);
    hasFix = raw.byte(2) != 0;
    numberOfSatellites = raw.byte(3);
    hour = raw.byte(4);
    minute = raw.byte(5);
    second = raw.byte(6);
    milliseconds = raw.byte(7) + MillisecondsPerHighUnit * raw.byte(8);
    timeValid = hour != 0 || minute != 0 || second != 0;
    latitude = raw.little<float>(17);
    longitude = raw.little<float>(21);
    altitude = raw.little<float>(25);
    groundspeed = raw.little<float>(29);
    groundtrack = raw.little<float>(33);
    limit(latitude, -90.0001f, 90.0001f);
    limit(longitude, -360.0001f, 360.0001f);
    limit(altitude, -10000.0f, 100000.0f);
    limit(groundspeed, -10.0f, 1000.0f);
    limit(groundtrack, -360.0001f, 360.0001f);
}

std::string TalosGPSMessage::print() const {
    return MessageText(*this)
        .add("valid", valid)
        .add("timeStamp", std::to_string(timeStamp))
        .add("hasFix", hasFix)
        .add("numberOfSatellites", numberOfSatellites)
        .add("hour", hour)
        .add("minute", minute)
        .add("second", second)
        .add("milliseconds", milliseconds)
        .add("timeValid", timeValid)
        .add("latitude", latitude)
        .add("longitude", longitude)
        .add("altitude", altitude)
        .add("groundspeed", groundspeed)
        .add("groundtrack", groundtrack)
        .text();
}

} // namespace skyvane
