#include "core/text/Numbers.h"
#include "sensors/records/GPS_Data.h"

#include <cmath>

namespace skyvane {
namespace {

std::wstring widen(const std::string& ascii) {
    return std::wstring(ascii.begin(), ascii.end());
}

std::wstring number(double value) {
    return widen(toText(value));
}
std::wstring number(int value) {
    return widen(toText(value));
}
std::wstring flag(bool value) {
    return value ? L"1" : L"0";
}

/// At least that many digits.
std::wstring digits(int value, size_t count) {
    std::wstring text = number(value);
    if (value >= 0 && text.size() < count)
        text.insert(0, count - text.size(), L'0');
    return text;
}

/// Thousandths of a minute decide the whole text, so that 59.9996' becomes the next degree and not 60.000'.
std::wstring angleText(double degrees, wchar_t positive, wchar_t negative) {
    constexpr double thousandthsPerDegree = 60000.0;
    if (!std::isfinite(degrees))
        return L"-";
    const double thousandths = std::floor(std::fabs(degrees) * thousandthsPerDegree + 0.5);
    const double whole = std::floor(thousandths / thousandthsPerDegree);
    const double minutes = (thousandths - whole * thousandthsPerDegree) / 1000.0;
    return widen(toFixedText(whole, 0)) + L"\u00B0 " + widen(toFixedText(minutes, 3)) + L"' " +
           (degrees < 0.0 ? negative : positive);
}

} // namespace

std::wstring GPS_Data::calcLatitudeString() const {
    return angleText(latitude, L'N', L'S');
}

std::wstring GPS_Data::calcLongitudeString() const {
    return angleText(longitude, L'E', L'W');
}

std::wstring GPS_Data::toString() const {
    return L"Available Data: Time:" + flag(timeAvailable) + L" Position:" + flag(positionAvailable) + L" Altitude:" +
           flag(altitudeAvailable) + L" DilutionOfPrecision:" + flag(dilutionOfPrecisionAvailable) + L" Date:" +
           flag(dateAvailable) + L" Speed:" + flag(speedAvailable) + L" GroundTrack:" + flag(groundTrackAvailable) +
           L" MagneticVariation:" + flag(magneticVariationAvailable) + L"\nTime (UTC): " + digits(hour, 2) + L":" +
           digits(minute, 2) + L":" + digits(second, 2) + L"." + digits(millisecond, 3) + L"\nDate: " +
           digits(year, 4) + L"-" + digits(month, 2) + L"-" + digits(day, 2) + L"\nLatitude: " + calcLatitudeString() +
           L" Longitude: " + calcLongitudeString() + L"\nFix Quality: " + number(fixQuality) + L"\n#Satellites: " +
           number(satelliteCount) + L"\nAltitude: " + number(altitude) + L"\nFix Type: " + number(fixType) +
           L"\nPDOP: " + number(pdop) + L" HDOP: " + number(hdop) + L" VDOP: " + number(vdop) +
           L"\nPosition/Velocity/Track Status: " + number(status) + L"\nGroundSpeed: " + number(groundSpeed) +
           L"\nGroundTrack: " + number(groundTrack) + L"\nMagnetic Variation: " + number(magneticVariation) + L"\n";
}

} // namespace skyvane
