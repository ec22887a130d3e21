#pragma once

#include "procedures/framework/GeneralProcedureFactory.h"
#include "procedures/holding/HoldingProcedure.h"

namespace skyvane {

/// Offers a holding at a fix, a navaid or a mark, or where the aircraft is. The dialog stands above: it prepares the
/// values, lets the pilot change them, and Create makes the holding of them.
class HoldingProcedureFactory : public GeneralProcedureFactory {
public:
    using GeneralProcedureFactory::GeneralProcedureFactory;

    /// Set in an IndicatedProcedure to "1", it asks for a holding at the current position.
    static constexpr const char* CurrentPositionParameter = "cpos";

    /// Without an element: at the current position.
    std::list<IndicatedProcedure> getPossibleProcedures(IChartElement* element, int id) override;
    bool areProceduresPossible(IChartElement* element) override;
    /// Standard values for an element, null for none.
    void prepare(const IndicatedProcedure& procedure, IChartElement* element);
    HoldingProcedure::Pattern& getPattern() { return pattern_; }
    /// Its fix; to be changed where there is no element.
    ChartPosition& getPosition() { return position_; }
    bool isAtElement() const { return atElement_; }
    /// The bare pattern with the present values, to be shown.
    CourseList makePattern(double altitudeMetres);

    std::unique_ptr<IProcedure> Create() override;
    std::unique_ptr<IProcedure> CreateFromIni(IChartElementSource* charts, IniFile* document,
                                              const std::string& section, unsigned index) override;
    std::string getName() override { return "Holding"; }
    IProcedure::Type getType() override { return IProcedure::Holding; }

private:
    double defaultCourse(const IChartElement* element);

    HoldingProcedure::Pattern pattern_;
    bool atElement_ = false;
    int chartIndex_ = 0;
    ChartPosition position_;
};

} // namespace skyvane
