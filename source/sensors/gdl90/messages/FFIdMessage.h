#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <cstdint>

namespace skyvane {

/// What the device is, in the words of its maker.
class FFIdMessage : public IGDL90Message {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return FFID; }
    std::string print() const override;

    uint64_t serialNumber = 0;
    std::string deviceName;
    std::string deviceLongName;
    bool isOwnShipMSLAltitude = false; ///< Otherwise the geometric altitude is above the ellipsoid.
};

} // namespace skyvane
