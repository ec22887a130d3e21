#include "procedures/plan/ProcedureForm.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/text/Numbers.h"
#include "core/text/StrictNumber.h"
#include "procedures/framework/IProcedureFactory.h"
#include "procedures/framework/ProcedureKeys.h"
#include "procedures/intercept/InterceptProcedure.h"

#include <cmath>

namespace skyvane {
namespace {

using Kind = ProcedureForm::Kind;
using Limits = ProcedureValues;
constexpr const char* Section = "plan";
constexpr const char* AltitudeKey = "targetAltitude";
constexpr const char* RadialKey = "courseToElement";
constexpr const char* NoAltitude = "auto";
constexpr double HighestFeet = 60000.0, LowestFeet = -2000.0, WidestFeet = 30000.0, FastestKnots = 1000.0;
constexpr double LongestLegMiles = 100.0;
constexpr double FullCircle = 360.0;

/// What each kind of procedure has of it; those of others are left out.
constexpr ProcedureForm::Row AllRows[] = {
    {"course", "Holding Course [°]: ", Kind::Number, 1.0, 0.0, 0.0, FullCircle},
    {"dmedistance", "Leg Length [NM]: ", Kind::Number, 1.0, 0.0, 0.0, LongestLegMiles},
    {"rightturns", "Right Turns", Kind::Flag, 1.0, 0.0, 0.0, 1.0},
    {RadialKey, "Radial (groundtrack) [°]: ", Kind::Number, 1.0, 180.0, 0.0, FullCircle},
    {"interceptOffset", "Interception Offset [°]: ", Kind::Number, 1.0, 0.0, InterceptProcedure::LeastOffset,
     InterceptProcedure::MostOffset},
    {"to", "To the element (off: away from it)", Kind::Flag, 1.0, 0.0, 0.0, 1.0},
    {"fafAlt", "FAF Altitude [ft, MSL]: ", Kind::Number, MetresPerFoot, 0.0, LowestFeet, HighestFeet},
    {"tpAltitude", "Traffic Pattern Altitude [ft, MSL]: ", Kind::Number, MetresPerFoot, 0.0, LowestFeet, HighestFeet},
    {"isLeftTraffic", "Left Traffic", Kind::Flag, 1.0, 0.0, 0.0, 1.0},
    {AltitudeKey, "Altitude at the end [ft, MSL] (empty: as before): ", Kind::Number, MetresPerFoot, 0.0, LowestFeet,
     HighestFeet, true},
    {"targetTurnRate", "Target TurnRate [°/s]: ", Kind::Number, 1.0, 0.0, Limits::LeastTurnRate, Limits::MostTurnRate},
    {"targetGroundSpeed", "approx. GS [Kts]: ", Kind::Number, 1.0, 0.0, 0.0, FastestKnots},
    {"checkCourse", "Warn when off course", Kind::Flag, 1.0, 0.0, 0.0, 1.0},
    {"positionTolerance", "Tolerance of the position [feet]: ", Kind::Number, MetresPerFoot, 0.0, 0.0, WidestFeet},
    {"checkAltitude", "Warn when off altitude", Kind::Flag, 1.0, 0.0, 0.0, 1.0},
    {"altitudeTolerance", "Tolerance of the altitude [feet]: ", Kind::Number, MetresPerFoot, 0.0, 0.0, WidestFeet},
    {"checkGroundSpeed", "Warn when off ground speed", Kind::Flag, 1.0, 0.0, 0.0, 1.0},
    {"speedTolerance", "Tolerance of the speed [Kts]: ", Kind::Number, 1.0, 0.0, 0.0, FastestKnots}};

/// A tenth is as fine as a pilot enters anything.
std::string shown(const ProcedureForm::Row& row, double stored) {
    double value = stored / row.unit - row.offset;
    if (row.most == FullCircle)
        value = Angle0to360(value);
    return toText(std::round(value * 10.0) / 10.0);
}

double inPlan(const ProcedureForm::Row& row, double entered) {
    const double value = (entered + row.offset) * row.unit;
    return row.most == FullCircle ? Angle0to360(value) : value;
}

} // namespace

ProcedureForm::ProcedureForm(IProcedure& procedure, IChartElementSource* charts) : factory_(procedure.getFactory()) {
    procedure.insertInIni(charts, &plan_, Section, 0);
    for (const Row& row : AllRows)
        if (has(row.key) && (row.key != AltitudeKey || procedure.isLocationAltitudeMutable()))
            rows_.push_back(row);
    fill();
}

bool ProcedureForm::has(const char* key) const {
    return plan_.isAvailable(Section, std::string("proc[0].") + key);
}

void ProcedureForm::fill() {
    const ProcedureKeys keys(plan_, Section, 0);
    for (const Row& row : rows_) {
        const std::string stored = keys.text(row.key);
        if (row.kind == Kind::Flag)
            values.set("", row.key, stored);
        else
            values.set("", row.key, stored == NoAltitude ? "" : shown(row, toDouble(stored)));
    }
}

std::string ProcedureForm::findTrouble() {
    for (const Row& row : rows_) {
        const std::string& text = values.get("", row.key);
        if (row.kind == Kind::Flag || (row.isOptional && text.empty()))
            continue;
        double value = 0.0;
        if (!parseStrictNumber(text, value) || value < row.least || value > row.most)
            return std::string(row.label) + "\nplease enter a number from " + toText(row.least) + " to " +
                   toText(row.most) + ".";
    }
    return {};
}

/// What the pilot left as it was shown stays exactly as it was: the form rounds.
std::unique_ptr<IProcedure> ProcedureForm::create(IChartElementSource* charts) {
    if (!factory_ || !findTrouble().empty())
        return nullptr;
    ProcedureKeys keys(plan_, Section, 0);
    for (const Row& row : rows_) {
        const std::string& text = values.get("", row.key);
        const std::string stored = keys.text(row.key);
        if (row.kind == Kind::Flag)
            keys.setFlag(row.key, toBool(text));
        else if (text.empty())
            keys.setText(row.key, NoAltitude);
        else if (stored == NoAltitude || text != shown(row, toDouble(stored)))
            keys.setNumber(row.key, inPlan(row, toDouble(text)));
    }
    return factory_->CreateFromIni(charts, &plan_, Section, 0);
}

} // namespace skyvane
