#include "procedures/framework/ProcedureKeys.h"

#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/text/Numbers.h"

#include <cmath>
#include <limits>

namespace skyvane {
namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();
constexpr double LargestLongitude = 540.0; // positions come as -180 to 180 and as 0 to 360
constexpr double LargestLatitude = 90.0;

} // namespace

ProcedureKeys::ProcedureKeys(IniFile& document, std::string section, unsigned index)
    : document_(document), section_(std::move(section)), prefix_("proc[" + std::to_string(index) + "].") {}

std::string ProcedureKeys::text(const char* name, const std::string& fallback) const {
    return readValue(document_, section_, key(name), fallback);
}

double ProcedureKeys::number(const char* name, double fallback, double least, double most) const {
    const double value = toDouble(text(name), none);
    return value >= least && value <= most ? value : fallback;
}

bool ProcedureKeys::flag(const char* name, bool fallback) const {
    return toBool(text(name), fallback);
}

bool ProcedureKeys::position(const char* name, ChartPosition& position) const {
    const std::string base(name);
    const double longitude = number((base + ".longitude").c_str(), none, -LargestLongitude, LargestLongitude);
    const double latitude = number((base + ".latitude").c_str(), none, -LargestLatitude, LargestLatitude);
    if (std::isnan(longitude) || std::isnan(latitude))
        return false;
    position = ChartPosition(longitude, latitude);
    return true;
}

void ProcedureKeys::setText(const char* name, const std::string& value) {
    document_.set(section_, key(name), value);
}

void ProcedureKeys::setNumber(const char* name, double value) {
    setText(name, toText(value));
}

void ProcedureKeys::setFlag(const char* name, bool value) {
    setText(name, value ? "1" : "0");
}

void ProcedureKeys::setPosition(const char* name, const ChartPosition& position) {
    setText((std::string(name) + ".longitude").c_str(), toText(position.longitude));
    setText((std::string(name) + ".latitude").c_str(), toText(position.latitude));
}

} // namespace skyvane
