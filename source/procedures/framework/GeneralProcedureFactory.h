#pragma once

#include "procedures/framework/IProcedureFactory.h"

#include <optional>

namespace skyvane {

class IProcedureHost;

/// What the factories of all kinds have in common: the general settings that a pilot gives a procedure.
class GeneralProcedureFactory : public IProcedureFactory {
public:
    struct GeneralValues {
        double targetTurnRate = 2.5;       ///< degrees per second
        int approximateGroundSpeed = 120;  ///< knots
        int positionTolerance = 50;        ///< feet
        int altitudeTolerance = 50;        ///< feet
        std::optional<int> targetAltitude; ///< feet above mean sea level; nothing keeps that of the way there
    };

    /// The host outlives the factory.
    explicit GeneralProcedureFactory(IProcedureHost* host) : host_(host) {}

    /// With the ground speed that the current aircraft normally flies at, if it has one.
    virtual void setGeneralStandardValues();
    /// Gives a procedure the general values, and has its altitude and course watched.
    virtual void writeGeneralValues(IProcedure* procedure);
    /// The aircraft's place, and its altitude in feet; what nobody knows stays as it was.
    virtual void fillAltAndPos(double& longitude, double& latitude, int& altitude);

    GeneralValues& getGeneralValues() { return general_; }

protected:
    IProcedureHost* getHost() const { return host_; }
    /// One line with the factory's name, where procedures are possible.
    std::list<IndicatedProcedure> getOnlyProcedure(IChartElement* element, int id);

private:
    IProcedureHost* host_;
    GeneralValues general_;
};

} // namespace skyvane
