#pragma once

#include "procedures/framework/GeneralProcedureFactory.h"
#include "procedures/intercept/InterceptProcedure.h"

#include <list>
#include <map>

namespace skyvane {

/// Appends the airways of an area and all below it that begin or end within 100 m of a position.
void appendAirwaysInVicinity(IChartElementSource* charts, int area, ChartPosition position, std::list<int>& airways);

/// Offers to fly along a radial of a fix or navaid, or along an airway that is connected to it. The dialog stands
/// above:
///
///     factory.prepare(procedure, element);
///     show(factory.findConnectedAirways());
///     if (factory.useAirway(id, 45.0, true) == InterceptProcedureFactory::Answer::Good)
///         plan.add(factory.Create());
class InterceptProcedureFactory : public GeneralProcedureFactory {
public:
    using GeneralProcedureFactory::GeneralProcedureFactory;

    enum class Answer { Good, OffsetTooSmall, NoAirway };

    std::list<IndicatedProcedure> getPossibleProcedures(IChartElement* element, int id) override {
        return getOnlyProcedure(element, id);
    }
    bool areProceduresPossible(IChartElement* element) override;
    /// Standard values for an element; without it the aircraft's place counts.
    void prepare(const IndicatedProcedure& procedure, IChartElement* element);
    /// What a list shows, in its order, and the ids of the airways.
    std::map<std::string, int> findConnectedAirways();
    /// The element's, or the aircraft's.
    const ChartPosition& getPosition() const { return position_; }
    const InterceptProcedure::Line& getLine() const { return line_; }
    /// The radial as seen from the element; what isn't good changes nothing.
    Answer useRadial(double radial, double offset, bool to);
    Answer useAirway(int airway, double offset, bool to);

    /// A path towards the element meets the line only when the element has been passed already.
    bool isMetBeyond(const CourseList& path) const;

    std::unique_ptr<IProcedure> Create() override;
    std::unique_ptr<IProcedure> CreateFromIni(IChartElementSource* charts, IniFile* document,
                                              const std::string& section, unsigned index) override;
    std::string getName() override { return "Intercept Airway/Radial"; }
    IProcedure::Type getType() override { return IProcedure::Intercept; }

private:
    int chartIndex_ = 0;
    ChartPosition position_;
    InterceptProcedure::Line line_;
};

} // namespace skyvane
