#pragma once

#include "gui/input/IInput.h"

namespace skyvane {

/// A real keyboard: nothing on the screen.
class KeyInput : public IInput {
public:
    void render() override {}
    bool processEvent(const irr::SEvent&) override { return true; }
    void OnSelect() override {}
    void setColor(irr::video::SColor) override {}
    void OnDeSelect() override {}
};

} // namespace skyvane
