#include "procedures/approach/ApproachProfiles.h"

#include "chart/geodesy/EarthConstants.h"
#include "procedures/approach/ApproachProcedureFactory.h"
#include "procedures/approach/FinalApproach.h"
#include "procedures/approach/TrafficPatternApproach.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr double ShortestFinalMiles = 0.1;
constexpr double ShortestCircuitFinalMiles = 0.5;
constexpr int CircuitHeightFeet = 1000;

FinalApproachFix fixOf(const ApproachProcedureFactory& factory, double leastMiles) {
    const ApproachValues& values = factory.getValues();
    FinalApproachFix fix;
    fix.distanceMiles = std::max(leastMiles, static_cast<double>(values.getFinalLength()));
    fix.course = factory.getRunway().course;
    fix.altitude = values.fafAltitudeMetres(leastMiles);
    return fix;
}

} // namespace

void AApproachProfile::setGUI(ApproachProcedureFactory* factory) const {
    factory->getValues().setUsual(finalLengthMiles_);
}

LongFinal::LongFinal(int finalLengthMiles)
    : AApproachProfile(finalLengthMiles, std::to_wstring(finalLengthMiles) + L"NM Final") {}

std::unique_ptr<IApproach> LongFinal::create(ApproachProcedureFactory* factory) const {
    auto approach = std::make_unique<FinalApproach>(factory->getHost(), factory);
    if (!approach->setUp(factory->getRunway(), fixOf(*factory, ShortestFinalMiles)))
        return nullptr;
    return approach;
}

TrafficPattern::TrafficPattern(int finalLengthMiles, bool isLeftTraffic)
    : AApproachProfile(finalLengthMiles, isLeftTraffic ? L"Left Traffic Pattern" : L"Right Traffic Pattern"),
      isLeftTraffic_(isLeftTraffic) {}

std::unique_ptr<IApproach> TrafficPattern::create(ApproachProcedureFactory* factory) const {
    auto approach = std::make_unique<TrafficPatternApproach>(factory->getHost(), factory);
    if (!approach->setUp(factory->getRunway(), fixOf(*factory, ShortestCircuitFinalMiles)))
        return nullptr;
    approach->setCircuit(isLeftTraffic_, (factory->getValues().getElevation() + CircuitHeightFeet) * MetresPerFoot);
    return approach;
}

std::vector<std::unique_ptr<const IApproachProfile>> makeApproachProfiles() {
    std::vector<std::unique_ptr<const IApproachProfile>> profiles;
    for (const int miles : {10, 5})
        profiles.push_back(std::make_unique<LongFinal>(miles));
    for (const bool isLeft : {true, false})
        profiles.push_back(std::make_unique<TrafficPattern>(1, isLeft));
    return profiles;
}

} // namespace skyvane
