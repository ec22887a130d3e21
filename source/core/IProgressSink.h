#pragma once

#include <string>

namespace skyvane {

/// Shows how far a long work is. The work calls it on its own thread, often: what draws limits itself.
class IProgressSink {
public:
    /// What the work is; UTF-8, lines apart by line feeds.
    virtual void setTitle(const std::string& title) = 0;
    /// The share done, 0 to 1.
    virtual void setProgress(double share) = 0;
    /// The work shall end as soon as it can; what it hasn't finished is done another time.
    virtual bool isCancelled() { return false; }
    virtual ~IProgressSink() = default;
};

} // namespace skyvane
