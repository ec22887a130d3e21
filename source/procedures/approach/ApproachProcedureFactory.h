#pragma once

#include "procedures/approach/ApproachProfiles.h"
#include "procedures/approach/ApproachValues.h"
#include "procedures/approach/LandingRunway.h"
#include "procedures/framework/GeneralProcedureFactory.h"

namespace skyvane {

/// Makes approaches to the runway ends of airports.
///
///     if (factory.choose(line, element).empty()) {
///         factory.selectProfile(2);
///         auto approach = factory.Create();
///     }
class ApproachProcedureFactory : public GeneralProcedureFactory {
public:
    explicit ApproachProcedureFactory(IProcedureHost* host)
        : GeneralProcedureFactory(host), profiles_(makeApproachProfiles()) {}

    /// Two lines for each runway of an airport.
    std::list<IndicatedProcedure> getPossibleProcedures(IChartElement* element, int id) override;
    bool areProceduresPossible(IChartElement* element) override;
    /// Null when the charts don't have the runway any more.
    std::unique_ptr<IProcedure> Create() override;
    std::unique_ptr<IProcedure> CreateFromIni(IChartElementSource* charts, IniFile* document,
                                              const std::string& section, unsigned index) override;
    std::string getName() override { return "Approach"; }
    IProcedure::Type getType() override { return IProcedure::Approach; }

    /// Takes the runway end of a line, with the first profile; what to tell the pilot when that can't be done.
    std::string choose(const IndicatedProcedure& line, const IChartElement* element);
    const std::vector<std::unique_ptr<const IApproachProfile>>& getProfiles() const { return profiles_; }
    /// Also sets the values to those of the profile.
    void selectProfile(size_t index);
    size_t getSelectedProfile() const { return selected_; }

    const AppRunway& getRunway() const { return runway_; }
    ApproachValues& getValues() { return values_; }
    const ApproachValues& getValues() const { return values_; }
    using GeneralProcedureFactory::getHost;

private:
    std::vector<std::unique_ptr<const IApproachProfile>> profiles_;
    size_t selected_ = 0;
    AppRunway runway_;
    ApproachValues values_;
};

/// The end that a line of an airport stands for; nothing for what is no such line.
std::optional<AppRunway> runwayOfLine(const IndicatedProcedure& line, const IChartElement* element);

} // namespace skyvane
