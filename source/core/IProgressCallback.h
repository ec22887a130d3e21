#pragma once

namespace skyvane {

/// Is told of each step of long work that has a picture of its progress.
class IProgressCallback {
public:
    virtual void nextStep() = 0;
    virtual ~IProgressCallback() = default;
};

} // namespace skyvane
