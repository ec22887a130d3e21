#pragma once

#include "sensors/records/ISensorDataFactory.h"
#include "sensors/records/LocGs_Data.h"

namespace skyvane {

/// Makes records of the localizer, or of the glideslope.
class LocGsFactory : public ISensorDataFactory {
public:
    explicit LocGsFactory(bool localizer) : localizer_(localizer) {}
    std::unique_ptr<ISensorData> Create() override { return std::make_unique<LocGs_Data>(localizer_); }
    std::string getName() override { return localizer_ ? "Localizer" : "Glideslope"; }

private:
    bool localizer_;
};

} // namespace skyvane
