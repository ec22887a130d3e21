#pragma once

#include "procedures/approach/IApproach.h"

namespace skyvane {

/// Straight in: the shortest way to the final approach fix, then final.
class FinalApproach : public IApproach {
public:
    static constexpr const char* AppId = "FinalApproach";

    FinalApproach(IProcedureHost* host, IProcedureFactory* factory) : IApproach(host, factory) {}

    const char* getAppId() const override { return AppId; }

protected:
    CourseList calculatePath(const ApproachPath& path, const ApproachStart& start) const override {
        return straightInApproach(path, start);
    }
};

} // namespace skyvane
