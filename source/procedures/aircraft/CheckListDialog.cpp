#include "procedures/aircraft/CheckListDialog.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/text/Utf8.h"
#include "gui/skin/Skin.h"
#include "gui/windows/BackButton.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/WindowTools.h"
#include "procedures/aircraft/AircraftDocuments.h"

namespace skyvane {
namespace {

std::wstring shownLines(const CheckList& list) {
    std::wstring text;
    for (const std::string& line : list.lines)
        text += decodeUtf8(line) + L"\n";
    return text;
}

/// Each line of the text; a "|" ends one too, since that is what stands between lines in the document.
std::list<std::string> linesOf(const std::wstring& text) {
    std::list<std::string> lines;
    std::wstring line;
    for (const wchar_t letter : text + L"\n") {
        if (letter != L'\n' && letter != L'\r' && letter != L'|') {
            line += letter;
            continue;
        }
        if (!line.empty())
            lines.push_back(encodeUtf8(line));
        line.clear();
    }
    return lines;
}

} // namespace

CheckListDialog::CheckListDialog(Context& context) : context_(context) {
    irr::gui::IGUIEnvironment* environment = context.getIrrlichtDevice()->getGUIEnvironment();
    IniFile document = readLayout(context.isPortrait() ? checkListPortraitLayout : checkListLandscapeLayout);
    window_ = EngineRef<irr::gui::IGUIWindow>::share(addWindowForRatio(
        environment, &document, environment->getRootGUIElement()->getAbsolutePosition(), true, nullptr, -1));
    gui_ = std::make_unique<GUI>(environment, &document, windowArea(window_.get()), window_.get(), false);
    auto* lines = gui_->get<irr::gui::IGUIEditBox>("elines");
    lines->setMultiLine(true);
    lines->setWordWrap(true);
    Skin::setButtonStyle(element("bcancel"), "redNormal");
    Skin::setButtonStyle(element("bok"), "greenNormal");
}

CheckListDialog::~CheckListDialog() {
    removeWindow(window_.get());
}

bool CheckListDialog::run(CheckList& list) {
    element("ename")->setText(decodeUtf8(list.name).c_str());
    element("elines")->setText(shownLines(list).c_str());
    const BackButton back(context_.getEvents(), element("bcancel"));
    enum { Open, Cancelled, Accepted } state = Open;
    ModalLoop loop(*context_.getFrames(), {[&](const irr::SEvent& event) {
                                               if (isClickOf(event, element("bok")))
                                                   state = Accepted;
                                               else if (isClickOf(event, element("bcancel")))
                                                   state = Cancelled;
                                           },
                                           ModalFrame::Backdrop::Grey});
    loop.run([&state] { return state == Open; });
    if (state != Accepted)
        return false;
    list.name = encodeUtf8(element("ename")->getText());
    list.lines = linesOf(element("elines")->getText());
    return true;
}

} // namespace skyvane
