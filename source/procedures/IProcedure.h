#pragma once

#include <string>

namespace skyvane {

/// What displays ask of the procedure that is being flown.
class IProcedure {
public:
    enum Type { None = 0, Direct = 1, Holding = 2, Approach = 3, Intercept = 4 };

    virtual ~IProcedure() = default;
    virtual std::string getName() = 0;
    virtual Type getType() = 0;
    /// Degrees true to the next significant point, -1 without one.
    double getBearing() const { return bearing_; }

protected:
    double bearing_ = -1.0;
};

} // namespace skyvane
