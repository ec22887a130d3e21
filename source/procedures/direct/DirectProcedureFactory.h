#pragma once

#include "procedures/framework/GeneralProcedureFactory.h"

namespace skyvane {

/// Offers to fly straight to any place of the charts but an obstruction. It needs no dialog.
class DirectProcedureFactory : public GeneralProcedureFactory {
public:
    using GeneralProcedureFactory::GeneralProcedureFactory;

    std::list<IndicatedProcedure> getPossibleProcedures(IChartElement* element, int id) override {
        return getOnlyProcedure(element, id);
    }
    bool areProceduresPossible(IChartElement* element) override;
    bool setup(IndicatedProcedure& procedure, IChartElement* element) override;
    std::unique_ptr<IProcedure> Create() override;
    std::unique_ptr<IProcedure> CreateFromIni(IChartElementSource* charts, IniFile* document,
                                              const std::string& section, unsigned index) override;
    std::string getName() override { return "Direct"; }
    IProcedure::Type getType() override { return IProcedure::Direct; }

private:
    int chartIndex_ = 0;
};

} // namespace skyvane
