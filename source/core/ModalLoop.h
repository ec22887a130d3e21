#pragma once

#include <functional>
#include <irrlicht.h>

namespace skyvane {

class EventReceiver;
class ModalLoop;

/// What a modal loop changes about a frame.
struct ModalFrame {
    enum class Backdrop {
        Panels, ///< The page stays visible behind the dialog.
        Grey    ///< Plain 0xff808080: for a dialog that fills the screen.
    };
    /// Takes the events of the queue in place of the panels.
    std::function<void(const irr::SEvent&)> onEvent;
    Backdrop backdrop = Backdrop::Panels;
};

/// Who can run a frame: the program's frame loop, or a smaller one before that stands.
class IFrameRunner {
public:
    virtual ~IFrameRunner() = default;
    /// One whole frame; false when there was none, since the window is closed or the program shall exit. Null for a
    /// frame of the panels.
    virtual bool runFrame(const ModalFrame* modal) = 0;
    virtual EventReceiver* getEvents() = 0;

private:
    friend class ModalLoop;
    const ModalLoop* innermost_ = nullptr; ///< The loop that waits; null for none.
};

/// Keeps the program alive while a dialog waits for its answer: sensors, events, pacer and drawing go on, frame by
/// frame. Every dialog waits with this one; loops may be nested: the innermost gets the events, and a plain backdrop of
/// an outer one stays.
///
///     ModalLoop loop(*context->getFrames(), {[&](const irr::SEvent& event) { dialog.processEvent(event); }});
///     if (loop.run([&] { return dialog.isVisible(); })) ... the user has answered ...
///
/// Events that wait in the queue when a loop begins or ends belong to what was on the screen before, and are dropped.
/// Main thread only.
class ModalLoop {
public:
    /// The runner, and all that the functions refer to, outlive the loop.
    explicit ModalLoop(IFrameRunner& frames, ModalFrame modal = {});
    ~ModalLoop();
    ModalLoop(const ModalLoop&) = delete;
    ModalLoop& operator=(const ModalLoop&) = delete;

    /// Frames until the predicate, asked before each, is false. False when the window was closed meanwhile.
    bool run(const std::function<bool()>& isOpen);
    /// One frame; false when the window is closed.
    bool step();

private:
    void dropEvents();

    IFrameRunner& frames_;
    const ModalLoop* const outer_;
    ModalFrame modal_;
};

} // namespace skyvane
