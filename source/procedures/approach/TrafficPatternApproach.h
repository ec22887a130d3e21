#pragma once

#include "procedures/approach/IApproach.h"

namespace skyvane {

/// A traffic circuit around the runway, see trafficPatternApproach.
class TrafficPatternApproach : public IApproach {
public:
    static constexpr const char* AppId = "TrafficPatternApproach";

    TrafficPatternApproach(IProcedureHost* host, IProcedureFactory* factory) : IApproach(host, factory) {}

    /// On which side of the landing direction, and how high in metres above mean sea level, the circuit is.
    void setCircuit(bool isLeftTraffic, double altitude);
    bool isLeftTraffic() const { return isLeftTraffic_; }
    double getCircuitAltitude() const { return tpAltitude_; }
    /// What the pilot must hear of a final that begins above the circuit; empty when there is nothing to say.
    std::string climbWarning() const;
    const char* getAppId() const override { return AppId; }
    /// The path ends where it enters the circuit: only who has flown around has reached its end.
    bool shallSwitchToNextProc() override;

protected:
    CourseList calculatePath(const ApproachPath& path, const ApproachStart& start) const override;
    bool readOwnKeys(const ProcedureKeys& keys) override;
    void writeOwnKeys(ProcedureKeys& keys) const override;

private:
    bool isLeftTraffic_ = true;
    double tpAltitude_ = 0.0;
};

} // namespace skyvane
