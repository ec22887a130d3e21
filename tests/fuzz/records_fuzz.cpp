#include "sensors/ISensorHost.h"
#include "sensors/SensorManager.h"
#include "sensors/StandardDataFactories.h"

#include <cstdlib>
#include <vector>

using namespace skyvane;

namespace {

std::vector<uint8_t> formOf(ISensorData& record) {
    int length = 0;
    const auto* bytes = static_cast<const uint8_t*>(record.serialize(&length));
    return std::vector<uint8_t>(bytes, bytes + length);
}

} // namespace

/// The first byte picks the record type, the rest is its byte form. What a record took over survives the next trip.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static SensorManager manager(nullptr);
    if (!manager.getSensorDataFactory(ISensorData::GPS))
        addStandardDataFactories(manager);
    if (size == 0)
        return 0;
    const auto type = static_cast<ISensorData::Type>(data[0] % ISensorData::TypeCount);
    std::vector<uint8_t> input(data + 1, data + size);

    auto record = manager.createSensorData(type);
    record->deserialize(input.data(), static_cast<int>(input.size()));
    std::vector<uint8_t> form = formOf(*record);
    auto copy = manager.createSensorData(type);
    copy->deserialize(form.data(), static_cast<int>(form.size()));
    if (formOf(*copy) != form)
        std::abort();
    return 0;
}
