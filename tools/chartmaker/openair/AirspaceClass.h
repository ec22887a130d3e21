#pragma once

#include <string>

namespace skyvane {

/// The class code of charts for the class and the type of an OpenAir airspace, both in upper case. An ICAO letter comes
/// first; "R", "P" and "Q" become "RA", "PA" and "DA"; what charts don't know stays as it is.
std::string airspaceClassOf(const std::string& openAirClass, const std::string& openAirType);

} // namespace skyvane
