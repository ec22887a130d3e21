#pragma once

#include "procedures/framework/IProcedure.h"

namespace skyvane {

/// The procedure in force when no flight plan is flown.
class NullProcedure : public IProcedure {
public:
    NullProcedure() : IProcedure(nullptr) {}

    void calculateCourseList(ChartPosition, double, double) override {}
    bool shallSwitchToNextProc() override { return false; }
    std::string getName() override { return "Unspecified"; }
    Type getType() override { return None; }
};

} // namespace skyvane
