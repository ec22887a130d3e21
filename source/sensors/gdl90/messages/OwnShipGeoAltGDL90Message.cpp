#include "sensors/gdl90/messages/OwnShipGeoAltGDL90Message.h"

#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/MessageText.h"

namespace skyvane {

namespace {

constexpr double FeetPerUnit = 5.0;
constexpr double MetresPerFoot = 0.3048;
constexpr uint16_t NoMerit = 0x7FFF;

} // namespace

void OwnShipGeoAltGDL90Message::readFromRaw(const MessageBytes& raw) {
    altitude = raw.big<int16_t>(1) * FeetPerUnit * MetresPerFoot;
    const auto merit = raw.big<uint16_t>(3);
    verticalWarning = (merit & 0x8000) != 0;
    verticalFigureOfMerit.reset();
    if (merit != NoMerit)
        verticalFigureOfMerit = merit & 0x7FFF;
}

std::string OwnShipGeoAltGDL90Message::print() const {
    return MessageText(*this)
        .add("altitude", altitude)
        .add("verticalWarning", verticalWarning)
        .add("verticalFigureOfMerit", verticalFigureOfMerit)
        .text();
}

} // namespace skyvane
