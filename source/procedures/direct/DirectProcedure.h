#pragma once

#include "procedures/framework/IProcedure.h"

#include <memory>

namespace skyvane {

/// Flies straight to a place: on for a moment, a turn, and a great circle, climbing or sinking all the way.
class DirectProcedure : public IProcedure {
public:
    DirectProcedure(IChartElementSource* charts, int elementIndex, IProcedureFactory* factory);
    DirectProcedure(ChartPosition position, IProcedureFactory* factory);
    /// Null when the document tells no place.
    static std::unique_ptr<DirectProcedure> createFromIni(IChartElementSource* charts, IniFile* document,
                                                          const std::string& section, unsigned index,
                                                          IProcedureFactory* factory);

    void calculateCourseList(ChartPosition position, double altitude, double course) override;
    bool isLocationAltitudeMutable() const override { return true; }
    std::string getName() override { return name_; }
    Type getType() override { return Direct; }

private:
    std::string name_;
};

} // namespace skyvane
