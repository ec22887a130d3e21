#pragma once

#include "gui/font/FlexibleFont.h"

namespace skyvane {

/// For as long as it lives the font draws letters with a dark rim, which show on every ground: what the letters lose to
/// the rim, their fatness gives back.
class RimmedLetters {
public:
    explicit RimmedLetters(FlexibleFont& font)
        : font_(font), fatness_(font.getDefaultFatness()), border_(font.getDefaultBorderSize()),
          color_(font.getDefaultBorderColor()) {
        font_.setDefaultFatness(fatness_ - shift);
        font_.setDefaultBorderSize(width);
        font_.setDefaultBorderColor(irr::video::SColor(0xd0000000));
    }
    ~RimmedLetters() {
        font_.setDefaultFatness(fatness_);
        font_.setDefaultBorderSize(border_);
        font_.setDefaultBorderColor(color_);
    }
    RimmedLetters(const RimmedLetters&) = delete;
    RimmedLetters& operator=(const RimmedLetters&) = delete;

private:
    static constexpr float width = 0.16f, shift = 0.13f;
    FlexibleFont& font_;
    float fatness_, border_;
    irr::video::SColor color_;
};

} // namespace skyvane
