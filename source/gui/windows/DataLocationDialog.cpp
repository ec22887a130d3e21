#include "gui/windows/DataLocationDialog.h"

#include "core/ModalLoop.h"
#include "core/files/HomeFolder.h"
#include "core/files/Paths.h"
#include "core/text/Utf8.h"
#include "gui/skin/Skin.h"
#include "gui/windows/CMBox.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/ListRows.h"
#include "gui/windows/WindowTools.h"

namespace skyvane {
namespace {

std::wstring freeSpaceText(const MountPoint& folder) {
    const std::string text =
        humanReadableSpace(folder.freeBytes, 1000.0) + " free of " + humanReadableSpace(folder.totalBytes, 1000.0);
    return decodeUtf8(text);
}

} // namespace

DataLocationDialog::DataLocationDialog(irr::gui::IGUIEnvironment* environment) : environment_(environment) {
    const irr::core::rect<int> screen = environment_->getRootGUIElement()->getAbsolutePosition();
    const bool isPortrait = screen.getHeight() > screen.getWidth();
    IniFile document = readLayout(isPortrait ? dataLocationPortraitLayout : dataLocationLandscapeLayout);
    window_ = addWindowForRatio(environment_, &document, screen, false, nullptr, -1);
    window_->setVisible(false);
    gui_ = std::make_unique<GUI>(environment_, &document, windowArea(window_), window_, false);
    Skin::setButtonStyle(gui_->getElement("okButton"), "greenNormal");
    choices_ = {choice("logBox", "logFreeText"), choice("terrainBox", "terrainFreeText"),
                choice("imageBox", "imageFreeText"), choice("chartBox", "chartFreeText")};
}

DataLocationDialog::~DataLocationDialog() {
    choices_.clear();
    gui_.reset();
    removeWindow(window_);
}

DataLocationDialog::Choice DataLocationDialog::choice(const char* box, const char* freeText) const {
    return {gui_->get<irr::gui::IGUIComboBox>(box), gui_->getElement(freeText)};
}

std::optional<DataPaths> DataLocationDialog::run(IFrameRunner& frames, const std::list<MountPoint>& folders) {
    updateUsableDirs(folders);
    window_->setVisible(true);
    open_ = true;
    ModalLoop loop(frames, {[this](const irr::SEvent& event) { onEvent(event); }});
    const bool answered = loop.run([this] { return open_; });
    window_->setVisible(false);
    if (!answered)
        return std::nullopt;
    const auto path = [this](std::size_t index) { return rootOf(choices_[index]) + DataPaths::FolderName; };
    return DataPaths{path(2), path(1), path(3), path(0)};
}

void DataLocationDialog::updateUsableDirs(const std::list<MountPoint>& folders) {
    folders_.assign(folders.begin(), folders.end());
    std::vector<std::string> names;
    for (const MountPoint& folder : folders_)
        names.push_back(folder.name);
    for (const Choice& choice : choices_) {
        fillChoice(choice.box, *environment_->getSkin(), decodeRows(names));
        choice.box->setSelected(folders_.empty() ? -1 : 0);
        showFreeSpace(choice);
    }
}

void DataLocationDialog::showFreeSpace(const Choice& choice) {
    const irr::s32 selected = choice.box->getSelected();
    showText(choice.freeText, selected >= 0 ? freeSpaceText(folders_[selected]).c_str() : L"");
}

/// With a trailing slash; empty without a selection.
std::string DataLocationDialog::rootOf(const Choice& choice) const {
    const irr::s32 selected = choice.box->getSelected();
    return selected < 0 ? std::string() : cleanPath(folders_[selected].path + "/");
}

void DataLocationDialog::onEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_GUI_EVENT)
        return;
    gui_->Update(event.GUIEvent);
    if (event.GUIEvent.EventType == irr::gui::EGET_COMBO_BOX_CHANGED)
        for (const Choice& choice : choices_)
            if (choice.box == event.GUIEvent.Caller)
                showFreeSpace(choice);
    if (isClickOf(event, gui_->getElement("okButton")))
        accept();
}

void DataLocationDialog::accept() {
    for (const Choice& choice : choices_) {
        const std::string root = rootOf(choice);
        if (root.empty())
            return tell(L"Please select a location.");
        if (!isUsableDataRoot(root))
            return tell(L"This location can't be written to: " + decodeUtf8(root));
    }
    open_ = false;
}

void DataLocationDialog::tell(const std::wstring& text) {
    (new CMBox(environment_, nullptr, text, L"Ok", L""))->drop();
}

} // namespace skyvane
