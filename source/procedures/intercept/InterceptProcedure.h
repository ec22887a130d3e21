#pragma once

#include "procedures/framework/IProcedure.h"

#include <memory>

namespace skyvane {

/// Flies onto a straight line through a chart element and along it: a radial of a navaid, or an airway that ends there.
class InterceptProcedure : public IProcedure {
public:
    static constexpr double LeastOffset = 25.0, MostOffset = 155.0;

    struct Line {
        double courseToElement = 0.0;  ///< Along the line towards the element, degrees true.
        double interceptOffset = 45.0; ///< At which the line is met, degrees: LeastOffset to MostOffset.
        bool to = true;                ///< Towards the element, or away from it.
    };

    InterceptProcedure(IChartElementSource* charts, int elementIndex, const Line& line, IProcedureFactory* factory);
    /// Null when the document tells no place.
    static std::unique_ptr<InterceptProcedure> createFromIni(IChartElementSource* charts, IniFile* document,
                                                             const std::string& section, unsigned index,
                                                             IProcedureFactory* factory);

    void insertInIni(IChartElementSource* charts, IniFile* document, const std::string& section,
                     unsigned index) override;
    bool isLocationAltitudeMutable() const override { return true; }
    void calculateCourseList(ChartPosition position, double altitude, double course) override;
    std::string getName() override { return name_; }
    Type getType() override { return Intercept; }
    const Line& getLine() const { return line_; }

private:
    void makeName(IChartElementSource* charts);

    Line line_;
    std::string name_;
};

} // namespace skyvane
