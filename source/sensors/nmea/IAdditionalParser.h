#pragma once

#include <string>
#include <vector>

namespace skyvane {

/// Takes the sentences that an NMEA_Parser doesn't take itself.
class IAdditionalParser {
public:
    virtual ~IAdditionalParser() = default;
    /// Token 0 is the sentence's name. True when it gave new data. A sentence whose checksum is wrong never comes here.
    virtual bool parse(std::vector<std::string>* tokens, bool checksumOk) = 0;
};

} // namespace skyvane
