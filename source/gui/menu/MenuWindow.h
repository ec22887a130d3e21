#pragma once

#include "core/engine/EngineRef.h"
#include "gui/windows/GUI.h"

#include <functional>
#include <irrlicht.h>
#include <memory>

namespace skyvane {

class Context;

/// A small window that a row of the menu opens beside the instruments, which go on: built from a pair of layout
/// documents, open while it lives until isOpen() is false. Its layout has a button "bclose". Main thread only.
class MenuWindow {
public:
    virtual ~MenuWindow();
    MenuWindow(const MenuWindow&) = delete;
    MenuWindow& operator=(const MenuWindow&) = delete;

    bool isOpen() const { return open_; }
    /// The events of the frame; true when this one was the window's.
    bool processEvent(const irr::SEvent& event);
    /// Once a frame.
    virtual void update() {}
    /// The flight plan, its paths or its current procedure are others.
    virtual void OnProcedureChanged() {}
    irr::gui::IGUIWindow* getWindow() const { return window_.get(); }
    irr::core::rect<int> getRect() const { return window_->getAbsolutePosition(); }

protected:
    enum class Place {
        Low, ///< The upper instruments stay in sight.
        High ///< The keys on the screen leave it free.
    };

    /// The layouts are texts that end in a NUL.
    MenuWindow(Context* context, const char* landscape, const char* portrait, Place place = Place::Low);

    /// A GUI event of an element of the window.
    virtual void onEvent(const irr::SEvent& event) = 0;
    /// Runs what needs the whole screen, in frames of its own, with the window out of the way.
    void runOnWholeScreen(const std::function<void()>& run);
    GUI& gui() { return *gui_; }
    irr::gui::IGUIElement* element(const char* id) const { return gui_->getElement(id); }

    Context* context_;

private:
    bool isOwn(const irr::gui::IGUIElement* caller) const;

    EngineRef<irr::gui::IGUIWindow> window_;
    std::unique_ptr<GUI> gui_;
    bool open_ = true;
};

} // namespace skyvane
