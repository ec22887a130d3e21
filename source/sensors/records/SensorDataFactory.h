#pragma once

#include "sensors/records/ISensorDataFactory.h"

#include <utility>

namespace skyvane {

/// Makes records of a class that has one type.
template <class T>
class SensorDataFactory : public ISensorDataFactory {
public:
    explicit SensorDataFactory(std::string name) : name_(std::move(name)) {}
    std::unique_ptr<ISensorData> Create() override { return std::make_unique<T>(); }
    std::string getName() override { return name_; }

private:
    std::string name_;
};

} // namespace skyvane
