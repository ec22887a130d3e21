#pragma once

#include "gui/windows/FormerFocus.h"
#include "gui/windows/InputDialog.h"

namespace skyvane {

class EditBoxDialog;

/// Hears what was entered.
class IEditBoxDialogCallback {
public:
    virtual ~IEditBoxDialogCallback() = default;
    /// Called once, while the dialog still stands; it goes afterwards. `accepted` is false after "Cancel".
    virtual void OnResult(EditBoxDialog* dialog, const wchar_t* text, bool accepted) = 0;
};

/// Asks for a text over everything else, and reports to a callback while the frames go on.
///
///     (new EditBoxDialog(this, device, L"Record", L"The new file's name:", L"Logfile"))->drop();
///
/// What lies behind is dimmed and gets no clicks. Enter is "Ok". What had the focus gets it back. The GUI holds the
/// dialog until it is answered; main thread only.
class EditBoxDialog : public irr::gui::IGUIElement {
public:
    struct Options {
        std::wstring hint;       ///< A line below the edit box, for instance what may be entered.
        bool allowEmpty = true;  ///< Else "Ok" waits until something is entered.
        bool isPassword = false; ///< Shows `passwordCharacter` for each character.
        wchar_t passwordCharacter = L'*';
        bool isNumber = false; ///< The keys on the screen are those for numbers.
    };

    /// The callback, which may be null, outlives the dialog.
    EditBoxDialog(IEditBoxDialogCallback* callback, irr::IrrlichtDevice* device, const std::wstring& title,
                  const std::wstring& text, const std::wstring& standard, const Options& options);
    EditBoxDialog(IEditBoxDialogCallback* callback, irr::IrrlichtDevice* device, const std::wstring& title,
                  const std::wstring& text, const std::wstring& standard)
        : EditBoxDialog(callback, device, title, text, standard, Options()) {}

    bool OnEvent(const irr::SEvent& event) override;
    void draw() override;

    irr::gui::IGUIButton* getCancelButton() const { return dialog_.cancel; }

private:
    void addHint();
    void answer(bool accepted);

    IEditBoxDialogCallback* callback_;
    Options options_;
    FormerFocus formerFocus_;
    InputDialog dialog_;
    bool answered_ = false;
};

} // namespace skyvane
