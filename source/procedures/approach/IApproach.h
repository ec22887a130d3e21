#pragma once

#include "procedures/approach/ApproachPath.h"
#include "procedures/approach/FinalApproachFix.h"
#include "procedures/approach/LandingRunway.h"
#include "procedures/framework/IProcedure.h"

#include <optional>

namespace skyvane {

class AirportElement;
class IProcedureHost;
class ProcedureKeys;

/// A procedure that leads to a runway end of an airport of the charts.
///
///     auto approach = std::make_unique<FinalApproach>(host, factory);
///     if (approach->setUp(runway, fix)) ... // or readFromIni
///
/// It keeps what it took of the chart, so that the chart may go. One that lost its airport or its runway keeps what it
/// knows for the saved plan, says so, and has no path. Warnings of its runway are messages that stay until the pilot
/// takes them away or the approach is no more. A fix from which final would meet the runway too steeply is kept as it
/// was saved, but not flown: the path begins where final is as steep as it may be, and the pilot hears of it.
class IApproach : public IProcedure {
public:
    ~IApproach() override;

    /// False when the charts don't have the runway or the fix; such an approach can't be flown.
    bool setUp(const AppRunway& runway, const FinalApproachFix& fix);
    /// False when the document doesn't tell a fix. Charts are null where there are none.
    bool readFromIni(IChartElementSource* charts, IniFile* document, const std::string& section, unsigned index);

    void insertInIni(IChartElementSource* charts, IniFile* document, const std::string& section,
                     unsigned index) override;
    void calculateCourseList(ChartPosition position, double altitude, double course) override;
    void OnChartChanged(IChartElementSource* charts) override;
    void repeatMessages() override;
    std::string getName() override { return name_; }
    Type getType() override { return Approach; }
    /// Identifies the class in saved plans.
    virtual const char* getAppId() const = 0;

    /// Nothing when the airport or the runway is lost.
    const std::optional<AppRunway>& getRunway() const { return runway_; }
    const LandingRunway& getLandingRunway() const { return landing_; }
    ChartPosition getFafPosition() const { return fafPosition_; }
    double getFafAltitude() const { return fafAltitude_; } ///< metres

protected:
    /// The host outlives the approach.
    IApproach(IProcedureHost* host, IProcedureFactory* factory) : IProcedure(factory), host_(host) {}

    virtual CourseList calculatePath(const ApproachPath& path, const ApproachStart& start) const = 0;
    virtual bool readOwnKeys(const ProcedureKeys&) { return true; }
    virtual void writeOwnKeys(ProcedureKeys&) const {}

private:
    const AirportElement* findAirport(IChartElementSource* charts) const;
    void findRunwayAgain(IChartElementSource* charts);
    bool describe(const AirportElement& airport, const AppRunway& runway);
    void lose(const std::string& message);
    void warn();
    /// With a runway only. As saved: the fix isn't limited.
    ApproachPath makePath() const;

    IProcedureHost* host_;
    std::optional<AppRunway> runway_;
    std::string loss_; ///< Why there is no runway, when there is none.
    LandingRunway landing_;
    ChartPosition fafPosition_;
    double fafAltitude_ = 0.0; ///< metres
    std::string name_;
};

} // namespace skyvane
