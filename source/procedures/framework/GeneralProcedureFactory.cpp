#include "procedures/framework/GeneralProcedureFactory.h"

#include "chart/geodesy/EarthConstants.h"
#include "procedures/aircraft/profiles/Aircraft.h"
#include "procedures/framework/FlightReadings.h"
#include "procedures/framework/IProcedureHost.h"

#include <cmath>

namespace skyvane {

void GeneralProcedureFactory::setGeneralStandardValues() {
    general_ = GeneralValues();
    const int normal = host_->getCurrentAircraft().Vno;
    if (normal >= 0)
        general_.approximateGroundSpeed = normal;
}

void GeneralProcedureFactory::writeGeneralValues(IProcedure* procedure) {
    ProcedureValues values = procedure->getValues();
    values.targetTurnRate = general_.targetTurnRate;
    values.targetGroundSpeed = general_.approximateGroundSpeed;
    values.positionTolerance = general_.positionTolerance * MetresPerFoot;
    values.altitudeTolerance = general_.altitudeTolerance * MetresPerFoot;
    if (general_.targetAltitude)
        values.targetAltitude = *general_.targetAltitude * MetresPerFoot;
    values.checkAltitude = true;
    values.checkCourse = true;
    values.checkGroundSpeed = false;
    procedure->setValues(values);
}

void GeneralProcedureFactory::fillAltAndPos(double& longitude, double& latitude, int& altitude) {
    const FlightReadings readings = readFlight(*host_->getSensorManager());
    if (readings.position) {
        longitude = readings.position->longitude;
        latitude = readings.position->latitude;
    }
    if (readings.altitude && std::fabs(*readings.altitude) <= ProcedureValues::HighestAltitude)
        altitude = static_cast<int>(*readings.altitude / MetresPerFoot);
}

std::list<IndicatedProcedure> GeneralProcedureFactory::getOnlyProcedure(IChartElement* element, int id) {
    if (!areProceduresPossible(element))
        return {};
    return {{id, getName(), this, {}}};
}

} // namespace skyvane
