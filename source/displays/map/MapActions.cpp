#include "displays/map/MapActions.h"

#include "chart/elements/IChartElement.h"
#include "chart/store/IChart.h"
#include "core/Context.h"
#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "displays/PanelManager.h"
#include "displays/map/MapSelection.h"
#include "gui/sensors/ChooseOne.h"
#include "gui/windows/CMBox.h"
#include "procedures/ProcedureManager.h"
#include "procedures/direct/DirectProcedure.h"

#include <cmath>

namespace skyvane {
namespace {

/// Degrees and minutes with two decimals, as charts and radios tell them.
std::string anglePart(double degrees, int digits, const char* positive, const char* negative) {
    const double minutes = std::round(std::fabs(degrees) * 6000.0) / 100.0;
    const int whole = static_cast<int>(minutes / 60.0);
    std::string number = toText(whole);
    number.insert(0, static_cast<size_t>(std::max(0, digits - static_cast<int>(number.size()))), '0');
    const std::string rest = toFixedText(minutes - 60.0 * whole, 2);
    return std::string(degrees < 0.0 ? negative : positive) + " " + number + "\xc2\xb0 " +
           (rest.size() < 5 ? "0" : "") + rest + "'";
}

std::string positionText(const ChartPosition& position) {
    return anglePart(position.latitude, 2, "N", "S") + "\n" + anglePart(position.longitude, 3, "E", "W");
}

void showBox(Context& context, const std::string& text) {
    (new CMBox(context.getIrrlichtDevice()->getGUIEnvironment(), nullptr, decodeUtf8(text), L"Close", L""))->drop();
}

/// Null without one. To be used at once.
IChartElement* elementOf(Context& context, int index) {
    IChart* chart = context.getPanelManager()->getChart();
    return chart && index != MapSelection::None ? chart->getChartElement(index) : nullptr;
}

} // namespace

void showMapInfo(Context& context, int index, const ChartPosition& position) {
    if (!elementOf(context, index))
        return showBox(context, "Position:\n" + positionText(position));
    context.getPanelManager()->showDetails(index);
}

bool areProceduresPossible(Context& context, IChartElement* element) {
    ProcedureManager* manager = context.getProcedureManager();
    bool arePossible = false;
    for (int i = 0; element && !arePossible && i < manager->getProcedureFactoryCount(); ++i)
        arePossible = manager->getProcedureFactory(i)->areProceduresPossible(element);
    return arePossible;
}

void createProcedure(Context& context, int index, const ChartPosition& marked, const ChartPosition& aircraft) {
    const int choice =
        chooseOne(context, {L"marked position", L"current aircraft's position", L"Cancel"}, L"Create at:");
    if (choice < 0 || choice > 1)
        return;
    ProcedureManager* manager = context.getProcedureManager();
    IChartElement* element = choice == 0 ? elementOf(context, index) : nullptr;
    if (areProceduresPossible(context, element)) {
        manager->newProcedure(element, index);
        return;
    }
    auto procedure = std::make_unique<DirectProcedure>(choice == 0 ? marked : aircraft,
                                                       manager->findProcedureFactorybyType(IProcedure::Direct));
    if (manager->getProcedureCount() == 0)
        manager->addProcedure(std::move(procedure));
    else
        manager->addProcedureAfterCurrent(std::move(procedure));
    manager->calculateCourseList();
}

} // namespace skyvane
