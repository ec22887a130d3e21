#pragma once

#include "chartmaker/command/ChartMaker.h"

#include <gtest/gtest.h>

#include <string>

namespace skyvane {

/// What a run of the program gives to its caller.
struct ChartMakerRun {
    explicit ChartMakerRun(const Arguments& arguments) {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        status = runChartMaker(arguments);
        out = testing::internal::GetCapturedStdout();
        error = testing::internal::GetCapturedStderr();
    }

    int status;
    std::string out;
    std::string error;
};

} // namespace skyvane
