#pragma once

#include "sensors/nmea/IAdditionalParser.h"
#include "sensors/nmea/NmeaSentence.h"
#include "sensors/raw/IGPSParser.h"

#include <string>
#include <vector>

namespace skyvane {

/// Turns the bytes of a receiver into its record: position, altitude, speed and track from the sentences GGA, GSA and
/// RMC (docs/formats/nmea.md tells which fields).
///
///     NMEA_Parser parser(NMEA_Parser::GpAndGn, 2000);
///     for (char byte : received)
///         if (parser.doStep(byte))
///             use(parser.getGPSData());
///
/// What a sentence says counts when it says that it is valid. One that isn't counts only when no sentence has counted
/// for the acceptance time-out: a moment without a fix overwrites nothing, a loss is learned. What was told before such
/// a silence doesn't count any more: a receiver that is back isn't where it was. A sentence that is broken costs itself
/// only. Places that aren't on the earth and times that aren't of a day are taken for missing.
/// One thread; after the first sentence it allocates nothing but what the additional parser is handed.
class NMEA_Parser final : public IGPSParser {
public:
    /// The talkers that are listened to, and how many tokens GGA, GSA and RMC have.
    enum NMEA_VERSION {
        Gp,       ///< GP: 15, 18, 12 or 13
        Gn,       ///< GN: 15, 18, 12 or 13
        GnSystem, ///< GN: 15, 19, 12 to 14
        GpAndGn   ///< both, with at least 15, 18, 12
    };

    NMEA_Parser(NMEA_VERSION version, int timeoutMs);

    bool doStep(char byte) override { return sentence_.add(byte) && takeSentence(byte); }
    GPS_Data getGPSData() override { return gps_; }
    /// Outlives the parser, or null.
    void setAdditionalParser(IAdditionalParser* parser) { additional_ = parser; }

private:
    bool takeSentence(char end);
    bool parseSentence();
    bool takesTalker(std::string_view talker) const;
    bool takesCount(size_t count, size_t least, size_t most) const;
    bool accept(bool isValid);
    void forget();
    bool parseGga();
    bool parseGsa();
    bool parseRmc();
    bool parseOther();
    void parseTime(std::string_view text);
    void parseDate(std::string_view text);
    void parsePosition(size_t first);

    NmeaSentence sentence_;
    GPS_Data gps_;
    NMEA_VERSION version_;
    unsigned timeoutMs_;
    unsigned lastAcceptedMs_;
    IAdditionalParser* additional_ = nullptr;
    std::vector<std::string> handedOn_;
};

} // namespace skyvane
