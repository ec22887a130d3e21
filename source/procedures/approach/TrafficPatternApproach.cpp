#include "procedures/approach/TrafficPatternApproach.h"

#include "chart/geodesy/EarthConstants.h"
#include "core/text/Numbers.h"
#include "procedures/approach/TrafficCircuit.h"
#include "procedures/framework/ProcedureKeys.h"

#include <cmath>
#include <limits>

namespace skyvane {

namespace {

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double HighestMetres = 100000.0;
/// 100 feet: a fix is set in hundreds, a circuit isn't.
constexpr double LeastClimbMetres = 100.0 * MetresPerFoot;
/// A circuit is longer, what is left of it near its end is shorter.
constexpr double MostMilesLeft = 0.3;

} // namespace

void TrafficPatternApproach::setCircuit(bool isLeftTraffic, double altitude) {
    isLeftTraffic_ = isLeftTraffic;
    tpAltitude_ = altitude;
}

std::string TrafficPatternApproach::climbWarning() const {
    if (getFafAltitude() - tpAltitude_ < LeastClimbMetres)
        return "";
    return "FAF above circuit (" + toText(roundHalfAway(tpAltitude_ / MetresPerFoot)) +
           " ft):\nthe turn to final climbs";
}

bool TrafficPatternApproach::shallSwitchToNextProc() {
    return IProcedure::shallSwitchToNextProc() && getLength() < MostMilesLeft;
}

CourseList TrafficPatternApproach::calculatePath(const ApproachPath& path, const ApproachStart& start) const {
    return trafficPatternApproach(path, isLeftTraffic_, tpAltitude_, start);
}

bool TrafficPatternApproach::readOwnKeys(const ProcedureKeys& keys) {
    isLeftTraffic_ = keys.flag("isLeftTraffic", true);
    tpAltitude_ = keys.number("tpAltitude", NoNumber, -HighestMetres, HighestMetres);
    return !std::isnan(tpAltitude_);
}

void TrafficPatternApproach::writeOwnKeys(ProcedureKeys& keys) const {
    keys.setFlag("isLeftTraffic", isLeftTraffic_);
    keys.setNumber("tpAltitude", tpAltitude_);
}

} // namespace skyvane
