#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <optional>

namespace skyvane {

/// The aircraft's own altitude by satellites.
class OwnShipGeoAltGDL90Message : public IGDL90Message {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return OWNSHIP_GEO_ALT; }
    std::string print() const override;

    double altitude = 0.0; ///< Metres; above what is the maker's choice (see FFIdMessage).
    bool verticalWarning = false;
    std::optional<double> verticalFigureOfMerit; ///< Metres.
};

} // namespace skyvane
