#include "procedures/dialogs/InterceptScreen.h"

#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/GreatCircle.h"
#include "chart/geodesy/LocalFrame.h"
#include "core/Context.h"
#include "core/log/Logger.h"
#include "core/text/Utf8.h"
#include "gui/skin/Skin.h"
#include "gui/windows/ListRows.h"
#include "gui/windows/WindowTools.h"
#include "procedures/dialogs/ProcedureDocuments.h"
#include "procedures/framework/FlightReadings.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double ShownMetres = 30.0 * MetresPerNauticalMile, SeenMetres = 2.0 * MetresPerNauticalMile;
constexpr int LineWidth = 2;
constexpr const wchar_t* BeyondText = L"Met beyond the fix: another line, offset or \"From\" suits better.";
const irr::video::SColor lineColor(0xff8fa6bd);

ChartPosition movedAlong(const ChartPosition& from, double courseDegrees, double metres) {
    const double course = courseDegrees / DegreesPerRadian;
    return Vector3df642ChartPosition(from, {std::sin(course) * metres, 0.0, std::cos(course) * metres});
}

/// How far the line is drawn to each side of the fix: beyond where the path meets it.
double lineReach(const ChartPosition& fix, const CourseList& path) {
    return path.empty() ? ShownMetres : std::max(ShownMetres, calcDistance2(fix, path.back().position) + SeenMetres);
}

std::wstring troubleOf(InterceptProcedureFactory::Answer answer) {
    switch (answer) {
    case InterceptProcedureFactory::Answer::OffsetTooSmall:
        return L"The interception course offset must be >= 25°.";
    case InterceptProcedureFactory::Answer::NoAirway:
        logText("Error: Airway not found.\n");
        return L"The charts don't know this airway any more.";
    default:
        return {};
    }
}

} // namespace

InterceptScreen::InterceptScreen(Context& context, InterceptProcedureFactory& factory, const std::string& place)
    : CourseScreen(context,
                   {interceptLandscapeLayout, interceptPortraitLayout, "Intercept.hti", "back", "help", "next",
                    "attPort", "compPort"},
                   factory.getGeneralValues()),
      factory_(factory) {
    showText(element("ttitle"), decodeUtf8(factory.getName() + ": " + place).c_str());
    colorText(element("twarning"), WarningColor);
    fillAirways();
    refresh();
}

void InterceptScreen::fillAirways() {
    auto* list = gui().get<irr::gui::IGUIListBox>("lbox");
    std::vector<std::string> rows;
    for (const auto& [text, id] : factory_.findConnectedAirways()) {
        rows.push_back(text);
        airways_.push_back(id);
    }
    fillList(list, *context_.getSkin(), decodeRows(rows));
    list->setSelected(airways_.empty() ? -1 : 0);
}

std::wstring InterceptScreen::take() {
    return isChecked("cradial") ? takeRadial() : takeAirway();
}

std::wstring InterceptScreen::takeAirway() {
    const int row = gui().get<irr::gui::IGUIListBox>("lbox")->getSelected();
    if (row < 0 || row >= static_cast<int>(airways_.size()))
        return L"You need to specify an airway.";
    const double offset = numberIn("eawyintoff").value_or(0.0);
    return troubleOf(factory_.useAirway(airways_[static_cast<size_t>(row)], offset, isChecked("cawyto")));
}

std::wstring InterceptScreen::takeRadial() {
    const std::optional<double> radial = numberIn("eradial");
    if (!radial)
        return L"The radial must be a number of degrees.";
    return troubleOf(factory_.useRadial(*radial, numberIn("eradintoff").value_or(0.0), isChecked("cradto")));
}

void InterceptScreen::refresh() {
    CoursePreview::Scene scene;
    const ChartPosition fix = factory_.getPosition();
    scene.fixes = {fix};
    if (take().empty()) {
        const double course = factory_.getLine().courseToElement;
        scene.seen = {movedAlong(fix, course, -SeenMetres), movedAlong(fix, course, SeenMetres)};
        const FlightReadings readings = readFlight(*context_.getSensorManager());
        const std::unique_ptr<IProcedure> made = factory_.Create();
        if (readings.isPlaced()) {
            made->calculateCourseList(*readings.position, *readings.altitude, readings.heading.value_or(0.0));
            scene.course = made->getCourseList();
        }
        const double reach = lineReach(fix, scene.course);
        scene.guides = {{movedAlong(fix, course, -reach), movedAlong(fix, course, reach), LineWidth, lineColor}};
    }
    showText(element("twarning"), factory_.isMetBeyond(scene.course) ? BeyondText : L"");
    preview().show(std::move(scene));
}

} // namespace skyvane
