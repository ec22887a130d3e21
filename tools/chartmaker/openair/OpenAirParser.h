#pragma once

#include "chart/elements/AirspaceElement.h"
#include "chartmaker/compile/SourceKind.h"
#include "chartmaker/openair/OpenAirAltitude.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace skyvane {

/// Turns the lines of an OpenAir file into airspaces, see docs/formats/openair.md.
///
///     OpenAirParser parser(sink);
///     while (lines.next(line)) parser.take(line, {path, lines.getLineNumber()});
///     parser.finish();
///
/// A boundary that isn't understood whole gives no airspace: a wrong one is worse. A limit that isn't understood gives
/// the larger airspace, from the surface or without a top, and a warning.
class OpenAirParser {
public:
    explicit OpenAirParser(IElementSink& sink) : sink_(sink) {}

    void take(std::string_view line, const SourceLine& where);
    /// Hands over the last airspace.
    void finish();

private:
    using Taker = void (OpenAirParser::*)(std::string_view value);
    struct Record {
        const char* name;
        Taker take;
    };
    static const Record records[];

    /// What is gathered between two "AC" records.
    struct Draft {
        std::unique_ptr<AirspaceElement> airspace = std::make_unique<AirspaceElement>();
        std::string fileName;
        long line = 0;
        std::string icaoClass;
        std::string type;
        std::string frequency;
        std::string station;
        std::string bottomText; ///< As in the file.
        std::string topText;
        std::string fault; ///< Why there can't be an airspace; empty without one.
        long faultLine = 0;
    };

    void takeClass(std::string_view value);
    void takeName(std::string_view value);
    void takeType(std::string_view value);
    void takeId(std::string_view value);
    void takeFrequency(std::string_view value);
    void takeStation(std::string_view value);
    void takeTransponder(std::string_view value);
    void takeTimes(std::string_view value);
    void takeBottom(std::string_view value);
    void takeTop(std::string_view value);
    void takeVariable(std::string_view value);
    void takePoint(std::string_view value);
    void takeArcByAngles(std::string_view value);
    void takeArcByPoints(std::string_view value);
    void takeCircle(std::string_view value);
    void takeCorridor(std::string_view value);
    void takeTerrain(std::string_view value);
    void ignore(std::string_view) {}

    /// Notes why the airspace can't be had; the first reason stays.
    void fail(const std::string& reason);
    bool hasCentre();
    void applyLimits();
    void completeRemarks();

    IElementSink& sink_;
    SourceLine where_;
    std::unique_ptr<Draft> draft_; ///< Null outside an airspace.
    bool isInTerrain_ = false;     ///< Behind "TO" or "TC".
    std::optional<ChartPosition> centre_;
    bool isClockwise_ = true;
};

/// Reads a file. False when it can't be read to its end.
bool readOpenAir(const std::string& path, const SourceContext& context);

} // namespace skyvane
