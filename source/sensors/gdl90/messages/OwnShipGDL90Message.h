#pragma once

#include "sensors/gdl90/messages/TrafficGDL90Message.h"

namespace skyvane {

/// The aircraft itself, in the form of a traffic report.
class OwnShipGDL90Message : public TrafficGDL90Message {
public:
    Type getType() const override { return OWNSHIP; }
};

} // namespace skyvane
