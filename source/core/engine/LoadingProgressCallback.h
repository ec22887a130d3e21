#pragma once

#include "core/IProgressCallback.h"

#include <irrlicht.h>

namespace skyvane {

/// The loading screen: a picture and a bar beneath it, redrawn at each step.
class LoadingProgressCallback : public IProgressCallback {
public:
    /// `step` is the share of the whole that one step stands for. The texture may be null: only the bar is drawn then.
    /// It is only looked at; device and texture outlive this object.
    LoadingProgressCallback(irr::IrrlichtDevice* device, irr::video::ITexture* texture, float step);
    ~LoadingProgressCallback() override;
    LoadingProgressCallback(const LoadingProgressCallback&) = delete;
    LoadingProgressCallback& operator=(const LoadingProgressCallback&) = delete;

    /// Adds the step and redraws at once.
    void nextStep() override;
    float getProgress() const { return progress_; }

private:
    void draw();
    void fill(const irr::core::rect<irr::s32>& area, irr::video::SColor color);

    irr::IrrlichtDevice* device_;
    irr::video::ITexture* texture_;
    irr::video::ITexture* white_; ///< one pixel, which the driver holds
    float step_;
    float progress_ = 0.0f;
};

} // namespace skyvane
