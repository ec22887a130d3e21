#pragma once

#include "gui/windows/FormerFocus.h"

#include <irrlicht.h>
#include <string>

namespace skyvane {

/// The program's message box: a text and up to two buttons above everything else, in the skin's look. What lies behind
/// is dimmed and gets no clicks; keys still turn the pages, so that a pilot can change the display first. The frame
/// goes on.
///
///     (new CMBox(environment, nullptr, L"Delete the page?", L"Delete", L"Cancel"))->drop();
///
/// A button calls OnPositive() or OnNegative(), then sends the parent a GUI event (caller: the box, element: the
/// button, type EGET_MESSAGEBOX_YES or EGET_MESSAGEBOX_NO), hides the box and removes it. A box without buttons is
/// closed by the back key when that is released. Enter is for the positive button, wherever on the box a finger has
/// been before; what had the focus gets it back. The parent holds the box; main thread only.
class CMBox : public irr::gui::IGUIElement {
public:
    /// Null as parent is the whole screen. An empty label leaves its button out. The text is wrapped, and what doesn't
    /// fit the screen is cut.
    CMBox(irr::gui::IGUIEnvironment* environment, irr::gui::IGUIElement* parent, const std::wstring& text,
          const std::wstring& positive, const std::wstring& negative, irr::s32 id = -1);

    bool OnEvent(const irr::SEvent& event) override;
    /// Nothing: the box is drawn after all the rest.
    void draw() override {}
    void OnPostRender(irr::u32 timeMilliseconds) override;

    irr::gui::IGUIButton* getPositiveButton() const { return positive_; }
    irr::gui::IGUIButton* getNegativeButton() const { return negative_; }

protected:
    virtual void OnPositive() {}
    virtual void OnNegative() {}

private:
    void build(const std::wstring& text, const std::wstring& positive, const std::wstring& negative);
    irr::gui::IGUIButton* addButton(const std::wstring& label, const irr::core::rect<irr::s32>& rect,
                                    const char* style);
    void answer(irr::gui::IGUIButton* button, bool isPositive);
    bool onKey(const irr::SEvent& event);
    irr::gui::IGUIButton* firstButton() const { return positive_ ? positive_ : negative_; }

    FormerFocus formerFocus_;
    irr::core::rect<irr::s32> window_;
    irr::gui::IGUIButton* positive_ = nullptr;
    irr::gui::IGUIButton* negative_ = nullptr;
};

} // namespace skyvane
