#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace skyvane {

/// What a ground station sent; its contents aren't looked at here.
class UATUplinkGDL90Message : public IGDL90Message {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return UAT_UPLINK; }
    std::string print() const override;

    static constexpr size_t PayloadBytes = 432;

    std::optional<double> timeOfReception; ///< Seconds after the last whole second of UTC.
    std::array<uint8_t, PayloadBytes> payload{};
};

} // namespace skyvane
