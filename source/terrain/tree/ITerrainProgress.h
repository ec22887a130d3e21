#pragma once

#include "core/IProgressSink.h"

namespace skyvane {

/// Shows a job that takes hours, and lets the pilot give it up. Asked on the thread that has started the job, several
/// times a second.
class ITerrainProgress : public IProgressSink {
public:
    /// The part of the work that is going on.
    virtual void setState(const std::string& text) = 0;
    bool isCancelled() override = 0;
};

} // namespace skyvane
