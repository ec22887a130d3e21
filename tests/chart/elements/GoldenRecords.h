#pragma once

#include "chart/elements/ElementFactory.h"
#include "chart/elements/IChartElement.h"

#include <sstream>
#include <string>
#include <vector>

namespace skyvane {

/// Bytes from pairs of hexadecimal digits and texts in single quotes; blanks and line feeds part them.
inline std::string bytesOf(const std::string& notation) {
    std::string bytes;
    bool quoted = false;
    std::string digits;
    for (const char c : notation) {
        if (c == '\'')
            quoted = !quoted;
        else if (quoted)
            bytes += c;
        else if (c != ' ' && c != '\n')
            digits += c;
        if (digits.size() == 2) {
            bytes += static_cast<char>(std::stoi(digits, nullptr, 16));
            digits.clear();
        }
    }
    return bytes;
}

// Doubles: 1.5 is 3FF8..., 42.5 is 40454..., 2.25 is 4002..., -2 is C0..., little-endian.
inline const std::string f1_5 = "00 00 00 00 00 00 F8 3F ";
inline const std::string f42_5 = "00 00 00 00 00 40 45 40 ";
inline const std::string f2_25 = "00 00 00 00 00 00 02 40 ";
inline const std::string fMinus2 = "00 00 00 00 00 00 00 C0 ";

/// One record of each kind, by type value, written from the tables of the format.
inline const std::vector<std::string>& goldenRecords() {
    static const std::vector<std::string> records = {
        // airspace: excludes, top AGL, bottom MSL; top 4500, bottom -999999; class, name, remarks; 3 vertices
        bytesOf("00 00 00 00  01 00 01  94 11 00 00  C1 BD F0 FF  03 00 00 00 'CTR' 04 00 00 00 'LESU' 01 00 00 00 'r'"
                "03 00 00 00 " +
                f1_5 + f42_5 + f2_25 + f42_5 + fMinus2 + f1_5),
        // airway: start, end longitude first; one direction; name, remarks; MEA 9000 yes, MOCA 0 no, MAA 19500 yes;
        // high
        bytesOf("01 00 00 00 " + f1_5 + f42_5 + fMinus2 + f2_25 +
                "01 02 00 00 00 'A1' 00 00 00 00  28 23 00 00 01  00 00 00 00 00  2C 4C 00 00 01  01 00"),
        // obstruction: latitude first; group; AGL 300, MSL 30000; lit; not accurate; remarks
        bytesOf("02 00 00 00 " + f42_5 + f1_5 + "01 2C 01 00 00 30 75 00 00 01 00 04 00 00 00 'mast'"),
        // waypoint: ident, remarks; high, not low, by airways; not public; reporting point
        bytesOf("03 00 00 00 " + f42_5 + f1_5 + "05 00 00 00 'GRAUS' 02 00 00 00 'vf' 01 00 01 00 01"),
        // mark
        bytesOf("04 00 00 00 " + f42_5 + f1_5 + "04 00 00 00 'Home' 06 00 00 00 'a; b#c'"),
        // NDB: 350 kHz; ident, name, remarks; not high, low, not by airways; variation 2.5
        bytesOf("05 00 00 00 " + f42_5 + f1_5 +
                "5E 01 00 00 03 00 00 00 'SEO' 07 00 00 00 'La Seu ' 00 00 00 00 00 01 00  00 00 20 40"),
        // VOR: 113 and 700; ident, name, FSS, remarks; VORTAC; channel; high, low, by airways; variation -2000
        bytesOf("06 00 00 00 " + f42_5 + fMinus2 +
                "71 00 00 00 BC 02 00 00 03 00 00 00 'SEU' 03 00 00 00 'Seu' 02 00 00 00 'BA' 03 00 00 00 'r r'"
                "01 00 00 00 03 00 00 00 '84X' 01 01 01  00 00 FA C4"),
        // airport: remarks, one runway, elevation 2625, ident, name, fuel, two frequency entries, flags, 3600, accuracy
        // 2
        bytesOf("07 00 00 00 " + f42_5 + f1_5 + "03 00 00 00 'rem' 01 00 00 00 " +
                // runway: grass, 4500 x 75, 30 degrees, left, unknown, lit
                "02 00 00 00 94 11 00 00 4B 00 00 00 1E 00 00 00 01 00 00 00 02 00 00 00 01" +
                // thresholds longitude first, then a flag each; elevations 2600 yes, 0 no; slopes 2.5 yes, 0 no
                f1_5 + f42_5 + "01" + std::string(34, '0') + "28 0A 00 00 01 00 00 00 00 00" +
                "00 00 20 40 01 00 00 00 00 00 03 00 00 00 '03L' 00 00 00 00" +
                // approaches of the ends: ILS 110, 300; none; accuracy 1
                "01 00 00 00 03 00 00 00 'ILS' 6E 00 00 00 2C 01 00 00  00 00 00 00  01" +
                "41 0A 00 00 04 00 00 00 'LESU' 0F 00 00 00 'Andorra - La Se' 05 00 00 00 '100LL'" +
                "02 00 00 00  05 00 00 00 'INFO ' 00 00 00 00  03 00 00 00 'TWR' 02 00 00 00"
                "76 00 00 00 13 01 00 00 79 00 00 00 F4 01 00 00" +
                "01 00 01 00 01 00  10 0E 00 00 02"),
        // ground: river, line, 300 ft, width 20 (and more bits), max weights 57 and 14, 2 vertices, name, description
        bytesOf("08 00 00 00 0B 01 2C 01 14 00 00 00 01 00 00 80 39 00 0E 00 02 00 00 00 " + f1_5 + f42_5 + f2_25 +
                f42_5 + "05 00 00 00 'Segre' 01 00 00 00 'd'"),
    };
    return records;
}

inline std::string recordOf(const IChartElement& element) {
    std::ostringstream out;
    element.write(out);
    return out.str();
}

/// The element of a record with its type value; null when it doesn't read.
inline std::unique_ptr<IChartElement> readRecord(const std::string& record) {
    if (record.size() < 4)
        return nullptr;
    auto element = createChartElement(record[0]);
    unsigned position = 4;
    return element->readFromBuffer(record.data(), position, static_cast<unsigned>(record.size())) ? std::move(element)
                                                                                                  : nullptr;
}

template <class Kind>
Kind goldenElement() {
    Kind element;
    const std::string& record = goldenRecords()[element.getType()];
    unsigned position = 4;
    element.readFromBuffer(record.data(), position, static_cast<unsigned>(record.size()));
    return element;
}

inline std::string staticDataOf(const IChartElement& element) {
    std::string bytes(IChartElement::StaticDataSize, '?');
    element.writeStaticData(bytes.data());
    return bytes;
}

} // namespace skyvane
