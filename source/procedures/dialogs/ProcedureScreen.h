#pragma once

#include "core/engine/EngineRef.h"
#include "displays/MessagePause.h"
#include "gui/windows/FormerFocus.h"
#include "gui/windows/GUI.h"
#include "gui/windows/WholeGlass.h"

#include <irrlicht.h>
#include <memory>
#include <optional>

namespace skyvane {

class Context;

/// A dialog about a procedure, over the whole glass: its window from a pair of layout documents, the instruments that
/// the pilot needs meanwhile at the places that the layout keeps for them, and the buttons that end it or open its page
/// of the manual. Who derives from it says what its elements do. No messages come up behind it.
///
///     if (HoldingScreen(context, factory).run()) ... the pilot has finished ...
///
/// Main thread only.
class ProcedureScreen {
public:
    virtual ~ProcedureScreen();
    ProcedureScreen(const ProcedureScreen&) = delete;
    ProcedureScreen& operator=(const ProcedureScreen&) = delete;

    /// Frames until the pilot goes on (true) or back.
    bool run();

protected:
    /// The layouts, as texts that end in a NUL, and the names of what all of them have.
    struct Form {
        const char* landscape;
        const char* portrait;
        const char* helpPage;
        const char* back = "bback";
        const char* help = "bhelp";
        const char* next = "bnext";
        const char* attitude = "sattitude";
        const char* compass = "scompass";
    };

    /// Of texts; what a pilot is to think about.
    static constexpr uint32_t PlainColor = 0xfff2f5f9, WarningColor = 0xffffb43c;

    ProcedureScreen(Context& context, const Form& form);

    /// A GUI event that is none of the three buttons'.
    virtual void onEvent(const irr::SEvent&) {}
    /// The pilot wants to go on; false to stay.
    virtual bool onNext() { return true; }
    /// Ends it as if "next" was pressed and went well.
    void finish() { state_ = State::Finished; }
    /// The instruments and the back key are this dialog's again, after another one that stood over it.
    void takeGlass();

    Context& context_;
    GUI& gui() { return *gui_; }
    irr::gui::IGUIWindow* window() const { return window_.get(); }
    irr::gui::IGUIElement* element(const char* id) const { return gui_->getElement(id); }
    static void colorText(irr::gui::IGUIElement* text, uint32_t argb);
    bool isChecked(const char* id) const;
    /// The pilot has typed, ticked or chosen something.
    static bool isEntry(const irr::SEvent& event);
    /// Nothing for a text that is no number.
    std::optional<double> numberIn(const char* id) const;

private:
    enum class State { Open, Left, Finished };
    void processEvent(const irr::SEvent& event);

    Form form_;
    FormerFocus focus_;
    std::optional<WholeGlass> glass_;
    MessagePause pause_;
    irr::gui::IGUIElement* backBefore_; ///< Not owned; the event receiver looks it up before use.
    EngineRef<irr::gui::IGUIWindow> window_;
    std::unique_ptr<GUI> gui_;
    State state_ = State::Open;
};

} // namespace skyvane
