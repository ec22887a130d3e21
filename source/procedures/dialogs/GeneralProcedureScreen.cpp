#include "procedures/dialogs/GeneralProcedureScreen.h"

#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "gui/windows/Questions.h"
#include "gui/windows/WindowTools.h"
#include "procedures/dialogs/ProcedureDocuments.h"
#include "procedures/preview/PathFigures.h"

namespace skyvane {
namespace {

constexpr double MostToleranceFeet = 5000.0, LeastToleranceFeet = 10.0;
constexpr double LeastSpeed = 1.0, MostSpeed = 999.0;
constexpr double LeastTurnRate = 0.5, MostTurnRate = 30.0;

struct Field {
    const char* id;
    double least;
    double most;
    const wchar_t* trouble;
};
constexpr Field Fields[] = {
    {"eturnrate", LeastTurnRate, MostTurnRate, L"The turn rate must be from 0.5 to 30 °/s."},
    {"espeed", LeastSpeed, MostSpeed, L"The ground speed must be from 1 to 999 kts."},
    {"eposition", LeastToleranceFeet, MostToleranceFeet, L"The position tolerance must be from 10 to 5000 feet."},
    {"ealtitude", LeastToleranceFeet, MostToleranceFeet, L"The altitude tolerance must be from 10 to 5000 feet."}};

} // namespace

GeneralProcedureScreen::GeneralProcedureScreen(Context& context, Values& values)
    : ProcedureScreen(
          context, {generalProcedureLandscapeLayout, generalProcedurePortraitLayout, "GeneralProcedureSettings.hti"}),
      values_(values), edited_(values) {
    element("eturnrate")->setText(decodeUtf8(toText(values.targetTurnRate)).c_str());
    element("espeed")->setText(decodeUtf8(toText(values.approximateGroundSpeed)).c_str());
    element("eposition")->setText(decodeUtf8(toText(values.positionTolerance)).c_str());
    element("ealtitude")->setText(decodeUtf8(toText(values.altitudeTolerance)).c_str());
    showResult();
}

void GeneralProcedureScreen::onEvent(const irr::SEvent& event) {
    if (!isEntry(event))
        return;
    edited_.targetTurnRate = numberIn("eturnrate").value_or(edited_.targetTurnRate);
    edited_.approximateGroundSpeed = roundHalfAway(numberIn("espeed").value_or(edited_.approximateGroundSpeed));
    edited_.positionTolerance = roundHalfAway(numberIn("eposition").value_or(edited_.positionTolerance));
    edited_.altitudeTolerance = roundHalfAway(numberIn("ealtitude").value_or(edited_.altitudeTolerance));
    showResult();
}

void GeneralProcedureScreen::showResult() {
    const double radius = turnRadiusMiles(edited_.targetTurnRate, edited_.approximateGroundSpeed);
    const double bank = bankDegrees(edited_.targetTurnRate, edited_.approximateGroundSpeed);
    const std::string text = "=> Turns: radius " + toFixedText(radius, 2) + " NM, bank " + toFixedText(bank, 0) +
                             "°\n=> Warnings beyond " + toText(edited_.positionTolerance) + " ft beside and " +
                             toText(edited_.altitudeTolerance) + " ft above or below the path";
    showText(element("tresult"), decodeUtf8(text).c_str());
}

bool GeneralProcedureScreen::onNext() {
    for (const Field& field : Fields) {
        const std::optional<double> value = numberIn(field.id);
        if (value && *value >= field.least && *value <= field.most)
            continue;
        tellInBox(context_, field.trouble);
        return false;
    }
    values_ = edited_;
    return true;
}

} // namespace skyvane
