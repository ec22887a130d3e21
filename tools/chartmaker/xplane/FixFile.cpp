#include "chartmaker/xplane/FixFile.h"

#include "chart/elements/WaypointElement.h"
#include "chartmaker/report/CompileReport.h"
#include "chartmaker/text/SourceText.h"
#include "chartmaker/xplane/XPlaneRows.h"

namespace skyvane {
namespace {

enum Value { Latitude, Longitude, Ident, Terminal, IcaoRegion, Type };
constexpr size_t fewestValues = 3;
constexpr const char* noTerminal = "ENRT";

/// The first character of the type of ARINC 424, which is the lowest byte of the number.
char typeOf(const std::vector<std::string_view>& values) {
    constexpr double greatest = 4294967295.0;
    const auto number = values.size() > Type ? readNumber(values[Type], 0.0, greatest) : std::nullopt;
    return static_cast<char>(static_cast<uint32_t>(number.value_or(0.0)) & 0x7f);
}

void addFix(const XPlaneRows& rows, const SourceContext& context) {
    const std::vector<std::string_view>& values = rows.getValues();
    const auto position =
        values.size() < fewestValues ? std::nullopt : readPosition(values[Latitude], values[Longitude]);
    if (!position)
        return context.sink.refuse(rows.getLine(), "no fix of latitude, longitude and ident");
    auto fix = std::make_unique<WaypointElement>();
    fix->position = *position;
    fix->ident = cleanText(values[Ident]);
    const char type = typeOf(values);
    fix->isPublic = type != 'U';
    fix->isReportingPoint = type == 'V';
    ElementOrigin origin;
    if (values.size() > IcaoRegion) {
        const std::string terminal = cleanText(values[Terminal]);
        origin.icaoRegion = cleanText(values[IcaoRegion]);
        fix->use.lowAltitude = terminal == noTerminal;
        if (terminal != noTerminal)
            fix->remarks = "Fix of " + terminal;
    }
    context.sink.add(std::move(fix), rows.getLine(), origin);
}

} // namespace

bool readFixFile(const std::string& path, const SourceContext& context) {
    XPlaneRows rows(path, context);
    while (rows.next())
        addFix(rows, context);
    return rows.isGood();
}

} // namespace skyvane
