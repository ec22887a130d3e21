#pragma once

#include "procedures/framework/IProcedure.h"

#include <memory>

namespace skyvane {

/// A racetrack around a fix: two half turns and two straight legs, flown until the pilot moves on.
///
/// The shortest way to the fix on the inbound course leads into it; it decides by itself how the pattern is joined,
/// without the classes of entries that pilots learn.
class HoldingProcedure : public IProcedure {
public:
    struct Pattern {
        double course = 0.0;      ///< To the fix, degrees true.
        double dmedistance = 2.0; ///< Length of the outbound leg, nautical miles.
        bool rightturns = true;
    };

    HoldingProcedure(IChartElementSource* charts, int elementIndex, const Pattern& pattern, IProcedureFactory* factory);
    HoldingProcedure(ChartPosition position, const Pattern& pattern, IProcedureFactory* factory);
    /// Around a place where the aircraft already is: the bare racetrack, without an entry.
    static std::unique_ptr<HoldingProcedure> createHere(ChartPosition position, const Pattern& pattern,
                                                        IProcedureFactory* factory);
    /// Null when the document tells no place.
    static std::unique_ptr<HoldingProcedure> createFromIni(IChartElementSource* charts, IniFile* document,
                                                           const std::string& section, unsigned index,
                                                           IProcedureFactory* factory);

    bool shallSwitchToNextProc() override { return false; }
    void insertInIni(IChartElementSource* charts, IniFile* document, const std::string& section,
                     unsigned index) override;
    bool isLocationAltitudeMutable() const override { return true; }
    void calculateCourseList(ChartPosition position, double altitude, double course) override;
    std::string getName() override { return name_; }
    Type getType() override { return Holding; }
    const Pattern& getPattern() const { return pattern_; }

private:
    CourseList makeRacetrack(double altitude) const;

    std::string name_;
    Pattern pattern_;
};

} // namespace skyvane
