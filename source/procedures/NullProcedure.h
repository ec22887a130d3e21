#pragma once

#include "procedures/IProcedure.h"

namespace skyvane {

/// The procedure in force when no flight plan is flown.
class NullProcedure : public IProcedure {
public:
    std::string getName() override { return "Unspecified"; }
    Type getType() override { return None; }
};

} // namespace skyvane
