#include "gui/windows/LoadSaveSettingsDialog.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/files/SafeFile.h"
#include "core/ini/IniFile.h"
#include "core/text/Utf8.h"
#include "gui/elements/AggregateGUIElement.h"
#include "gui/windows/BackButton.h"
#include "gui/windows/Questions.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>

namespace skyvane {
namespace {

std::wstring quoted(const std::string& name) {
    return L"\"" + decodeUtf8(name) + L"\"";
}

std::wstring counted(int entries) {
    return entries == 1 ? std::wstring(L"1 entry") : std::to_wstring(entries) + L" entries";
}

} // namespace

LoadSaveSettingsDialog::LoadSaveSettingsDialog(ILoadSaveSettingsCallback* callback, Context* context, IniFile* document,
                                               Options options)
    : callback_(callback), context_(context), environment_(context->getIrrlichtDevice()->getGUIEnvironment()),
      document_(document), options_(std::move(options)), library_(document, options_.path) {}

LoadSaveSettingsDialog::~LoadSaveSettingsDialog() = default;

bool LoadSaveSettingsDialog::run() {
    open_ = true;
    done_ = false;
    build();
    show();
    const BackButton back(context_->getEvents(), element("bcancel"));
    ModalLoop loop(*context_->getFrames(), {[this](const irr::SEvent& event) { onEvent(event); }});
    loop.run([this] { return open_; });
    rows_.clear();
    list_ = formerList_ = {};
    bar_ = nullptr;
    gui_.reset();
    removeWindow(window_);
    return done_;
}

void LoadSaveSettingsDialog::onEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_GUI_EVENT || !open_)
        return;
    gui_->Update(event.GUIEvent);
    if (onButton(event)) {
        if (open_)
            show();
        return;
    }
    for (const Row& row : rows_) {
        const Item item = row.item; // the row goes with what it does
        if (event.GUIEvent.EventType == ElementActivated && event.GUIEvent.Caller == row.element)
            return choose(item);
        if (isClickOf(event, row.rename))
            return rename(item);
        if (isClickOf(event, row.bin))
            return throwAway(item);
    }
}

/// Whether it was one beside the list.
bool LoadSaveSettingsDialog::onButton(const irr::SEvent& event) {
    if (isClickOf(event, element("bcancel")))
        open_ = false;
    else if (isClickOf(event, element("bsaveload")))
        save();
    else if (isClickOf(event, element("bload")))
        load();
    else if (isClickOf(event, element("bcreatefolder")))
        createFolder();
    else if (isClickOf(event, element("bimport")))
        importOrExport(true);
    else if (isClickOf(event, element("bexport")))
        importOrExport(false);
    else if (isClickOf(event, element("bdeleteall")))
        deleteAll();
    else
        return false;
    return true;
}

void LoadSaveSettingsDialog::choose(const Item& item) {
    if (!item.isFolder) {
        chosen_ = item.name;
        element("fileName")->setText(decodeUtf8(item.name).c_str());
        element("bload")->setEnabled(true);
        return;
    }
    chosen_.clear();
    const std::size_t slash = folder_.size() < 2 ? std::string::npos : folder_.rfind('/', folder_.size() - 2);
    folder_ = !item.name.empty()           ? folder_ + item.name + "/"
              : slash == std::string::npos ? std::string()
                                           : folder_.substr(0, slash + 1);
    show();
}

std::string LoadSaveSettingsDialog::enteredName() const {
    const std::string name = encodeUtf8(element("fileName")->getText());
    const std::size_t first = name.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : name.substr(first, name.find_last_not_of(' ') - first + 1);
}

void LoadSaveSettingsDialog::save() {
    const std::string name = enteredName();
    if (isGoodEntryName(name) && library_.isEntry(folder_ + name) &&
        !ask(quoted(name) + L" is there already.", L"Replace"))
        return;
    saving_ = true;
    bool isRefused = false;
    const Outcome outcome = library_.save(folder_, name, [&](IniFile& changed, const std::string& section) {
        isRefused = !callback_->OnResult(this, &changed, section);
        return !isRefused;
    });
    saving_ = false;
    if (isRefused || !tell(outcome))
        return;
    done_ = true;
    open_ = false;
}

void LoadSaveSettingsDialog::load() {
    if (!library_.isEntry(folder_ + chosen_) || !callback_->OnResult(this, document_, folder_ + chosen_))
        return;
    done_ = true;
    open_ = false;
}

void LoadSaveSettingsDialog::createFolder() {
    if (const auto name = askForText(*context_, L"New Folder", L"The name of the folder:", L""))
        tell(library_.makeFolder(folder_, encodeUtf8(*name)));
}

void LoadSaveSettingsDialog::rename(const Item& item) {
    const auto name =
        askForText(*context_, L"Rename", L"The new name of " + quoted(item.name) + L":", decodeUtf8(item.name));
    if (name)
        tell(library_.rename(folder_, item, encodeUtf8(*name)));
    show();
}

void LoadSaveSettingsDialog::throwAway(const Item& item) {
    const std::wstring content =
        item.isFolder ? L" with " + counted(library_.count(folder_ + item.name + "/")) : std::wstring();
    if (ask(L"Do you really want to delete " + quoted(item.name) + content + L"?", L"Delete"))
        tell(library_.remove(folder_, item));
    show();
}

void LoadSaveSettingsDialog::deleteAll() {
    if (ask(L"Do you really want to delete all " + counted(library_.count(folder_)) + L" of this folder?", L"Delete"))
        tell(library_.removeAll(folder_));
}

void LoadSaveSettingsDialog::importOrExport(bool isImport) {
    auto conflict = SettingsLibrary::Conflict::Keep;
    const int conflicts = library_.countConflicts(options_.exchangePath);
    const std::wstring where = isImport ? L" here" : L" there";
    if (conflicts > 0 &&
        askInBox(*context_, counted(conflicts) + L" with another content" + where + L" already.", L"Replace", L"Keep"))
        conflict = SettingsLibrary::Conflict::Replace;
    const Outcome outcome = isImport ? library_.importFrom(options_.exchangePath, conflict)
                                     : library_.exportTo(options_.exchangePath, conflict);
    const std::wstring path = decodeUtf8(options_.exchangePath);
    if (outcome == Outcome::Missing)
        tellInBox(*context_, L"There is nothing to import in " + path);
    else if (tell(outcome))
        tellInBox(*context_, (isImport ? L"Imported from " : L"Exported to ") + path);
}

bool LoadSaveSettingsDialog::ask(const std::wstring& question, const wchar_t* yes) {
    return askInBox(*context_, question, yes, L"Cancel");
}

bool LoadSaveSettingsDialog::tell(Outcome outcome) {
    switch (outcome) {
    case Outcome::Done:
        return true;
    case Outcome::BadName:
        tellInBox(*context_, L"Please enter a name of 1 to 100 characters without / and \\.");
        break;
    case Outcome::Exists:
        tellInBox(*context_, L"The name is used already.");
        break;
    case Outcome::Missing:
        tellInBox(*context_, L"There is nothing to save.");
        break;
    case Outcome::NotWritten:
        tellInBox(*context_, L"Nothing was changed: it could not be saved.\n" +
                                 decodeUtf8(whyNotWritten(library_.getWriteError())));
        break;
    }
    return false;
}

} // namespace skyvane
