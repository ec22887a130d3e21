#include "gui/windows/Questions.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/engine/EngineRef.h"
#include "gui/windows/BackButton.h"
#include "gui/windows/CMBox.h"
#include "gui/windows/EditBoxDialog.h"
#include "gui/windows/WindowTools.h"

namespace skyvane {
namespace {

irr::gui::IGUIEnvironment* environmentOf(Context& context) {
    return context.getIrrlichtDevice()->getGUIEnvironment();
}

/// Remembers what was pressed.
class Question : public CMBox {
public:
    using CMBox::CMBox;
    bool isOpen() const { return open_; }
    bool isPositive() const { return positive_; }

protected:
    void OnPositive() override {
        open_ = false;
        positive_ = true;
    }
    void OnNegative() override { open_ = false; }

private:
    bool open_ = true;
    bool positive_ = false;
};

/// Remembers what was entered.
class Entry : public IEditBoxDialogCallback {
public:
    void OnResult(EditBoxDialog*, const wchar_t* text, bool accepted) override {
        open_ = false;
        if (accepted)
            text_ = text;
    }
    bool isOpen() const { return open_; }
    const std::optional<std::wstring>& getText() const { return text_; }

private:
    bool open_ = true;
    std::optional<std::wstring> text_;
};

/// Frames until the dialog, which the GUI holds, has its answer. The back key gives the one that changes nothing.
template <class Dialog, class IsOpen>
void waitFor(Context& context, Dialog& dialog, irr::gui::IGUIButton* back, const IsOpen& isOpen) {
    const BackButton backButton(context.getEvents(), back);
    ModalLoop loop(*context.getFrames(), {[&](const irr::SEvent& event) {
        if (isOpen() && isClickOf(event, back))
            dialog.OnEvent(event);
    }});
    if (!loop.run(isOpen))
        removeWindow(&dialog);
}

std::optional<std::wstring> askInDialog(Context& context, const std::wstring& title, const std::wstring& text,
                                        const std::wstring& standard, EditBoxDialog::Options options) {
    Entry entry;
    options.allowEmpty = false;
    const auto dialog = EngineRef<EditBoxDialog>::adopt(
        new EditBoxDialog(&entry, context.getIrrlichtDevice(), title, text, standard, options));
    waitFor(context, *dialog, dialog->getCancelButton(), [&entry] { return entry.isOpen(); });
    return entry.getText();
}

} // namespace

bool askInBox(Context& context, const std::wstring& text, const std::wstring& positive, const std::wstring& negative) {
    const auto box =
        EngineRef<Question>::adopt(new Question(environmentOf(context), nullptr, text, positive, negative));
    waitFor(context, *box, box->getNegativeButton() ? box->getNegativeButton() : box->getPositiveButton(),
            [&box] { return box->isOpen(); });
    return box->isPositive();
}

void tellInBox(Context& context, const std::wstring& text) {
    askInBox(context, text, L"Ok", L"");
}

std::optional<std::wstring> askForText(Context& context, const std::wstring& title, const std::wstring& text,
                                       const std::wstring& standard) {
    return askInDialog(context, title, text, standard, {});
}

std::optional<std::wstring> askForNumber(Context& context, const std::wstring& title, const std::wstring& text,
                                         const std::wstring& standard, const std::wstring& example) {
    EditBoxDialog::Options options;
    options.hint = example;
    options.isNumber = true;
    return askInDialog(context, title, text, standard, options);
}

} // namespace skyvane
