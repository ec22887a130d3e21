#pragma once

#include "sensors/gdl90/messages/IGDL90Message.h"

namespace skyvane {

/// A message that isn't known, or too short for what it says it is.
class UnknownGDL90Message : public IGDL90Message {
public:
    void readFromRaw(const MessageBytes& raw) override;
    Type getType() const override { return UNKNOWN; }
    std::string print() const override;

    static constexpr int NoId = 255;

    int id = NoId;
};

} // namespace skyvane
