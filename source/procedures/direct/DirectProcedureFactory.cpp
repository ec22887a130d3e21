#include "procedures/direct/DirectProcedureFactory.h"

#include "chart/elements/IChartElement.h"
#include "procedures/direct/DirectProcedure.h"
#include "procedures/framework/IProcedureHost.h"

namespace skyvane {

bool DirectProcedureFactory::areProceduresPossible(IChartElement* element) {
    return element && element->getAreaDefiningPointCount() == 1 && element->getType() != IChartElement::OBSTRUCTION;
}

bool DirectProcedureFactory::setup(IndicatedProcedure& procedure, IChartElement*) {
    chartIndex_ = procedure.chartIndex;
    setGeneralStandardValues();
    return true;
}

std::unique_ptr<IProcedure> DirectProcedureFactory::Create() {
    auto direct = std::make_unique<DirectProcedure>(getHost()->getCharts(), chartIndex_, this);
    writeGeneralValues(direct.get());
    return direct;
}

std::unique_ptr<IProcedure> DirectProcedureFactory::CreateFromIni(IChartElementSource* charts, IniFile* document,
                                                                  const std::string& section, unsigned index) {
    return DirectProcedure::createFromIni(charts, document, section, index, this);
}

} // namespace skyvane
