#pragma once

#include "gui/input/IInput.h"
#include "gui/input/TouchKey.h"
#include "gui/input/WindowLift.h"
#include "gui/keys/FingerTracker.h"
#include "gui/keys/InputChoice.h"
#include "gui/keys/KeyboardDefinition.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class ICommonAppContext;
class IniFile;

/// On-screen input: as long as an edit box has the focus, a keyboard, a number pad or a wipe input stands at the bottom
/// of the screen and types into it. Which one, the id of the edit box says (EditBoxId); the change key brings the next.
///
/// Follows the GUI's focus by itself. Offered every event before the queue and the GUI, it keeps those of fingers (or
/// of the mouse) that came down on its keys; while one is down elsewhere, it hides. The window of the edit box moves up
/// where the keys would cover it. Main thread only.
class InputSystem : public irr::IEventReceiver {
public:
    /// The context, whose event receiver stands already, outlives the system. `changeImage` below the home folder.
    InputSystem(ICommonAppContext* context, const std::vector<KeyboardDefinition>& keyboards,
                const std::string& changeImage);
    ~InputSystem() override;
    InputSystem(const InputSystem&) = delete;
    InputSystem& operator=(const InputSystem&) = delete;

    /// True when the event is kept.
    bool OnEvent(const irr::SEvent& event) override { return !processEvent(event); }
    /// False when the event is kept: it is neither the panels' nor the GUI's.
    bool processEvent(const irr::SEvent& event);
    /// Follows the focus, and moves the window of the edit box before the GUI is drawn.
    void update();
    /// Draws over everything, at the end of a frame.
    void render();
    void setColor(irr::video::SColor color);
    void loadInputSettingsFromIni(IniFile* config);
    /// The text of the edit box that has taken the focus: numbers and destinations are selected, so that typing
    /// replaces them; strings get the cursor at their end.
    void handleEditBoxMarking();

    /// The upper edge of what is covered now: messages belong above it. The screen's height while nothing is shown.
    int getCoveredTop() const;
    /// Where the change key stands while something is shown.
    const irr::core::recti& getChangeRect() const { return changeKey_->getRect(); }

private:
    IInput& current() { return *inputs_[choice_.getCurrent()]; }
    const IInput& current() const { return *inputs_[choice_.getCurrent()]; }
    void followFocus();
    void finishFocus();
    bool isActive() const;
    bool isShown() const { return isActive() && !fingers_.isDownOutside(); }
    bool isOnKeys(irr::core::position2di position) const;
    void type(const FingerTracker::Event& finger);
    void changeInput();
    void placeChangeKey();
    void makeRoom();
    irr::video::SColor fadedColor();

    ICommonAppContext* context_;
    std::vector<std::unique_ptr<IInput>> inputs_;
    InputChoice choice_;
    EngineRef<irr::video::ITexture> changeImage_;
    std::unique_ptr<TouchKey> changeKey_;
    irr::video::SColor color_;
    FingerTracker fingers_;
    EngineRef<irr::gui::IGUIElement> editBox_; ///< Has the focus, or had it when that was last looked at.
    bool markingPending_ = false;
    double shownSince_ = 0.0;
    bool wasShown_ = false;
    std::vector<irr::core::recti> covers_;
    WindowLift lift_;
};

} // namespace skyvane
