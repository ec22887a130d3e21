#pragma once

#include "procedures/framework/IProcedureFactory.h"
#include "procedures/plan/FlightPlan.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane {

// Flight plans in a document: a section has the plan's name; see docs/formats/flight-plans.md.

using ProcedureFactories = std::vector<std::unique_ptr<IProcedureFactory>>;

/// No plan has more procedures, whatever its document says.
constexpr unsigned MostProcedures = 1000;

/// Null without one of that name. The name is IProcedureFactory::getName.
IProcedureFactory* findFactory(const ProcedureFactories& factories, const std::string& name);

/// In place of what the section held. The charts may be null.
void writePlan(const FlightPlan& plan, IniFile& document, const std::string& section, IChartElementSource* charts);

struct PlanReading {
    FlightPlan::Procedures procedures;
    /// What can't be flown, in words: the names of procedures that no factory knows, or that have no place.
    std::vector<std::string> losses;
};
/// Everything of a section that can be flown; without such a section nothing.
PlanReading readPlan(IniFile& document, const std::string& section, const ProcedureFactories& factories,
                     IChartElementSource* charts);

} // namespace skyvane
