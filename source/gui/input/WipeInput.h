#pragma once

#include "gui/input/IInput.h"
#include "gui/input/TouchKeys.h"
#include "gui/keys/WipeDial.h"

#include <vector>

namespace skyvane {

/// Dials the last character of the text by a finger that wipes up and down at the screen's right edge: for one thumb,
/// in turbulence. A key beside it begins the next character.
class WipeInput : public IInput {
public:
    /// `steps` characters pass while the finger wipes over the screen's height. The context outlives the input.
    WipeInput(ICommonAppContext* context, irr::video::SColor color, int steps);

    void render() override;
    bool processEvent(const irr::SEvent& event) override;
    void OnSelect() override;
    void setColor(irr::video::SColor color) override { color_ = color; }
    void OnDeSelect() override;
    bool isPreferredInput(int id) override;
    bool isAt(irr::core::position2di position) const override;
    irr::core::recti getCover() const override { return keyArea_; }

private:
    irr::gui::IGUIElement* editBox() const;
    wchar_t lastCharacter() const;
    void rest();
    void begin(int y);
    void replaceLast();
    void drawStrip(irr::video::SColor color);
    void addKeys(TouchKeys& keys, wchar_t first) const;

    ICommonAppContext* context_;
    irr::video::SColor color_;
    int steps_;
    irr::core::recti area_;
    irr::core::recti keyArea_;
    WipeDial dial_;
    float fade_ = 1.0f;
    TouchKeys letterKeys_;
    TouchKeys numberKeys_;
    TouchKeys* keys_ = &letterKeys_;
    std::vector<CachedText> strip_;
};

} // namespace skyvane
