#include "sensors/NoSetupGUISensorFactory.h"

#include <utility>

namespace skyvane {

NoSetupGUISensorFactory::NoSetupGUISensorFactory(std::string name, const std::vector<ISensorData::Type>& supportedTypes)
    : name_(std::move(name)) {
    for (const ISensorData::Type type : supportedTypes)
        if (ISensorData::isType(type))
            supported_[static_cast<size_t>(type)] = true;
}

std::vector<ISensorData::Type> NoSetupGUISensorFactory::getSupportedDataTypes() {
    std::vector<ISensorData::Type> types;
    for (int type = 0; type < ISensorData::TypeCount; ++type)
        if (supported_[static_cast<size_t>(type)])
            types.push_back(static_cast<ISensorData::Type>(type));
    return types;
}

bool NoSetupGUISensorFactory::isDataTypeSupported(ISensorData::Type type) {
    return ISensorData::isType(type) && supported_[static_cast<size_t>(type)];
}

} // namespace skyvane
