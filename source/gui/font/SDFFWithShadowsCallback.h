#pragma once

#include "gui/font/SDFFCallback.h"

namespace skyvane {

/// Adds the shadow's state for the second material.
class SDFFWithShadowsCallback : public SDFFCallback {
public:
    using SDFFCallback::SDFFCallback;
    void OnSetConstants(irr::video::IMaterialRendererServices* services) override;
};

} // namespace skyvane
