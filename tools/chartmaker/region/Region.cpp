#include "chartmaker/region/Region.h"

#include "chart/elements/IChartElement.h"
#include "chart/geodesy/Angles.h"
#include "core/text/StrictNumber.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

std::vector<std::string> splitAtCommas(const std::string& text) {
    std::vector<std::string> parts(1);
    for (const char c : text)
        if (c == ',')
            parts.emplace_back();
        else
            parts.back() += c;
    return parts;
}

bool isCountry(const std::string& text) {
    return text.size() == 2 && std::all_of(text.begin(), text.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

std::optional<std::vector<double>> readNumbers(const std::vector<std::string>& parts) {
    std::vector<double> numbers;
    for (const std::string& part : parts) {
        numbers.push_back(0.0);
        if (!parseStrictNumber(part, numbers.back()))
            return std::nullopt;
    }
    return numbers;
}

bool isFinite(const ChartPosition& position) {
    return std::isfinite(position.longitude) && std::isfinite(position.latitude);
}

/// How far `to` lies east of `from`, 0 to 360.
double degreesEast(double from, double to) {
    return Angle0to360(to - from);
}

int columnOf(double longitude) {
    return std::min(static_cast<int>(Angle0to360(longitude) * 2.0), AreaGridColumns - 1);
}

int rowOf(double latitude) {
    return std::clamp(static_cast<int>((90.0 - latitude) * 2.0), 0, AreaGridRows - 1);
}

size_t cellOf(int column, int row) {
    return static_cast<size_t>(row * AreaGridColumns + (column + AreaGridColumns) % AreaGridColumns);
}

} // namespace

std::optional<Region> Region::parse(const std::string& text, std::string& error) {
    Region region;
    if (text == "world")
        return region;
    const std::vector<std::string> parts = splitAtCommas(text);
    if (std::all_of(parts.begin(), parts.end(), isCountry)) {
        region.kind_ = Kind::Countries;
        region.countries_.insert(parts.begin(), parts.end());
        return region;
    }
    const auto box = readNumbers(parts);
    if (!box || box->size() != 4) {
        error = "\"" + text + "\" is no region: say world, WEST,SOUTH,EAST,NORTH in degrees, or countries as CH,AT";
        return std::nullopt;
    }
    const double west = (*box)[0], south = (*box)[1], east = (*box)[2], north = (*box)[3];
    if (std::fabs(west) > 360.0 || std::fabs(east) > 360.0 || south < -90.0 || north > 90.0 || south >= north ||
        west == east) {
        error = "\"" + text + "\" is no box: degrees are WEST,SOUTH,EAST,NORTH, with south below north";
        return std::nullopt;
    }
    region.kind_ = Kind::Box;
    region.northWest_ = ChartPosition(west, north);
    region.southEast_ = ChartPosition(east - west >= 360.0 ? west + 360.0 : west + degreesEast(west, east), south);
    return region;
}

bool Region::takes(const std::string& country, const ChartPosition& position) {
    if (kind_ != Kind::Countries || country.empty())
        return contains(position);
    if (countries_.count(country) == 0 || !isFinite(position))
        return false;
    cells_.resize(static_cast<size_t>(AreaGridColumns) * AreaGridRows);
    const int column = columnOf(position.longitude), row = rowOf(position.latitude);
    for (int r = std::max(row - 1, 0); r <= std::min(row + 1, AreaGridRows - 1); ++r)
        for (int c = column - 1; c <= column + 1; ++c)
            cells_[cellOf(c, r)] = true;
    return true;
}

bool Region::contains(const ChartPosition& position) const {
    return touches(position, position);
}

bool Region::touches(const IChartElement& element) const {
    const int count = element.getAreaDefiningPointCount();
    if (count == 0)
        return false;
    const ChartPosition first = element.getAreaDefiningPoint(0);
    double west = 0.0, east = 0.0, south = first.latitude, north = first.latitude;
    for (int i = 1; i < count; ++i) {
        const ChartPosition point = element.getAreaDefiningPoint(i);
        const double eastOfFirst = transformLongitude(point.longitude, first.longitude);
        west = std::min(west, eastOfFirst);
        east = std::max(east, eastOfFirst);
        south = std::min(south, point.latitude);
        north = std::max(north, point.latitude);
    }
    return touches({first.longitude + west, north}, {first.longitude + east, south});
}

bool Region::touches(const ChartPosition& northWest, const ChartPosition& southEast) const {
    if (!isFinite(northWest) || !isFinite(southEast))
        return false;
    if (kind_ == Kind::World)
        return true;
    const double width = southEast.longitude - northWest.longitude;
    if (kind_ == Kind::Box) {
        const double offset = degreesEast(northWest_.longitude, northWest.longitude);
        const bool sideBySide = offset <= southEast_.longitude - northWest_.longitude || offset + width >= 360.0;
        return sideBySide && southEast.latitude <= northWest_.latitude && northWest.latitude >= southEast_.latitude;
    }
    if (cells_.empty())
        return false;
    const int column = columnOf(northWest.longitude);
    const int columns = width >= 359.0 ? AreaGridColumns - 1
                                       : (columnOf(southEast.longitude) - column + AreaGridColumns) % AreaGridColumns;
    for (int row = rowOf(northWest.latitude); row <= rowOf(southEast.latitude); ++row)
        for (int i = 0; i <= columns; ++i)
            if (cells_[cellOf(column + i, row)])
                return true;
    return false;
}

} // namespace skyvane
