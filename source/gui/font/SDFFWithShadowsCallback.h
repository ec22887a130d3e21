#pragma once

#include "gui/font/SDFFCallback.h"

namespace skyvane {

/// Adds the shadow's state for the second material.
class SDFFWithShadowsCallback : public SDFFCallback {
public:
    using SDFFCallback::SDFFCallback;

protected:
    void findLocations(unsigned program) override;
    void sendConstants() const override;

private:
    int shadowOffset_ = -1;
    int shadowSmoothing_ = -1;
    int shadowColor_ = -1;
};

} // namespace skyvane
