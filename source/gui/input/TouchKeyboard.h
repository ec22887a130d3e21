#pragma once

#include "gui/input/IInput.h"
#include "gui/input/TouchKeys.h"

namespace skyvane {

/// A keyboard at the bottom of the screen, as its definition says.
class TouchKeyboard : public IInput {
public:
    /// The context outlives the keyboard.
    TouchKeyboard(ICommonAppContext* context, irr::video::SColor color, const KeyboardDefinition& definition);

    void render() override;
    /// True when the touch lay off the keyboard.
    bool processEvent(const irr::SEvent& event) override;
    void OnSelect() override { keys_.reset(); }
    void setColor(irr::video::SColor color) override { color_ = color; }
    void OnDeSelect() override { keys_.reset(); }
    bool isPreferredInput(int id) override { return editBoxIds_.count(id) != 0; }
    bool isAt(irr::core::position2di position) const override { return keys_.isAt(position); }
    irr::core::recti getCover() const override { return area_; }

private:
    ICommonAppContext* context_;
    irr::video::SColor color_;
    std::set<int> editBoxIds_;
    irr::core::recti area_;
    TouchKeys keys_;
};

} // namespace skyvane
