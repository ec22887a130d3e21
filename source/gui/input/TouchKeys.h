#pragma once

#include "gui/input/TouchKey.h"
#include "gui/keys/KeyboardDefinition.h"

#include <memory>
#include <vector>

namespace skyvane {

/// Keys that stand together, share a shift state and type into the edit box that has the focus. Main thread only.
class TouchKeys {
public:
    /// The context outlives the keys.
    explicit TouchKeys(ICommonAppContext* context);

    void add(const KeyDefinition& definition, const irr::core::rect<int>& rect);
    /// Offers a pointer's event to each key and sends what they make of it. False when it lies on none of them.
    bool process(const irr::SEvent::SMouseInput& mouse);
    /// Also types what is held down long enough.
    void render(irr::video::SColor color);
    /// No finger, no shift.
    void reset();
    bool isAt(irr::core::position2di position) const;

private:
    void send(const TouchKey& key);
    void leaveFinishedBox();
    void setShift(bool pressed);

    ICommonAppContext* context_;
    std::vector<std::unique_ptr<TouchKey>> keys_;
    EngineRef<irr::video::ITexture> shiftOn_;
    bool shift_ = false;
};

} // namespace skyvane
