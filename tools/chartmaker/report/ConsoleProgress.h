#pragma once

#include "core/IProgressSink.h"

#include <cstdio>

namespace skyvane {

/// Shows the progress of a work on one line of a terminal, at each whole percent; on anything else it keeps silent.
class ConsoleProgress : public IProgressSink {
public:
    explicit ConsoleProgress(std::FILE* terminal);
    ~ConsoleProgress() override { clear(); }

    void setTitle(const std::string& title) override;
    void setProgress(double share) override;
    /// Takes the line away, before something else is written.
    void clear();

private:
    std::FILE* terminal_; ///< Null when it is none.
    std::string title_;
    int percent_ = -1;
    bool isShown_ = false;
};

} // namespace skyvane
