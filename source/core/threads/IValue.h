#pragma once

namespace skyvane {

/// What goes into an AParallelFunction and what comes out.
class IValue {
public:
    virtual ~IValue() = default;
};

} // namespace skyvane
