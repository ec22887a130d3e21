#pragma once

#include <irrlicht.h>

namespace skyvane {

/// A way to put characters into the edit box that has the focus. Methods that show something turn touches into key
/// events, so that the edit box sees a plain keyboard. Main thread only.
class IInput {
public:
    virtual void render() = 0;
    /// A pointer's event. True when it isn't for this input.
    virtual bool processEvent(const irr::SEvent& event) = 0;
    virtual void OnSelect() = 0;
    virtual void setColor(irr::video::SColor color) = 0;
    virtual void OnDeSelect() = 0;
    /// Whether an edit box of this id (EditBoxId) brings this input up by itself, or can keep it.
    virtual bool isPreferredInput(int) { return false; }
    virtual ~IInput() = default;

    /// Whether the input stands at this place of the screen.
    virtual bool isAt(irr::core::position2di) const { return false; }
    /// What it hides at the bottom of the screen; empty where it hides nothing that matters.
    virtual irr::core::recti getCover() const { return {}; }
};

} // namespace skyvane
