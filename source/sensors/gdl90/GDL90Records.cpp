#include "sensors/gdl90/GDL90Records.h"

#include <algorithm>
#include <iterator>

namespace skyvane {

const std::vector<ISensorData::Type>& GDL90Records::types() {
    static const std::vector<ISensorData::Type> all{ISensorData::GPS,
                                                    ISensorData::Attitude,
                                                    ISensorData::Heading,
                                                    ISensorData::Acceleration,
                                                    ISensorData::Position,
                                                    ISensorData::Altitude,
                                                    ISensorData::GroundSpeed,
                                                    ISensorData::VerticalSpeed,
                                                    ISensorData::TurnRate,
                                                    ISensorData::AirSpeed,
                                                    ISensorData::InsidePressure,
                                                    ISensorData::OutsidePressure,
                                                    ISensorData::OutsideTemperature,
                                                    ISensorData::Traffic,
                                                    ISensorData::UATUplink,
                                                    ISensorData::AngleOfAttack,
                                                    ISensorData::ExtendedHeading};
    return all;
}

ISensorData* GDL90Records::get(ISensorData::Type type) {
    ISensorData* const records[] = {&gps,
                                    &attitude,
                                    &heading,
                                    &acceleration,
                                    &position,
                                    &altitude,
                                    &groundSpeed,
                                    &verticalSpeed,
                                    &turnRate,
                                    &airSpeed,
                                    &insidePressure,
                                    &outsidePressure,
                                    &outsideTemperature,
                                    &traffic,
                                    &uplinks,
                                    &angleOfAttack,
                                    &extendedHeading};
    const auto* found = std::find_if(std::begin(records), std::end(records),
                                     [type](ISensorData* record) { return record->getType() == type; });
    return found == std::end(records) ? nullptr : *found;
}

void GDL90Records::give(ISensorData::Type type, ISensor::WarningLevel level) {
    warnings_[index(type)] = level;
    updated_[index(type)] = true;
}

} // namespace skyvane
