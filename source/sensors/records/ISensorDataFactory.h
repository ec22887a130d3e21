#pragma once

#include "sensors/records/ISensorData.h"

#include <memory>
#include <string>

namespace skyvane {

/// Makes default records of one type and knows the type's name.
class ISensorDataFactory {
public:
    virtual std::unique_ptr<ISensorData> Create() = 0;
    virtual std::string getName() = 0;
    virtual ~ISensorDataFactory() = default;
};

} // namespace skyvane
