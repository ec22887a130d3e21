#pragma once

#include <cstdlib>
#include <string>

namespace skyvane {

/// Answers what a start would ask the pilot, for programs in homes of their own: where the data shall lie, and that no
/// profile of sensors is to be chosen.
inline void answerStartQuestions(const std::string& dataRoot) {
    ::setenv("SKYVANE_DATA_ROOT", dataRoot.c_str(), 1);
    ::setenv("SKYVANE_CHOOSE_PROFILE", "0", 1);
}

} // namespace skyvane
