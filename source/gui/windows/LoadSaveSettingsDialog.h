#pragma once

#include "core/engine/EngineRef.h"
#include "gui/saves/SettingsLibrary.h"
#include "gui/windows/GUI.h"

#include <irrlicht.h>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class AggregateGUIElement;
class Context;
class IAggregatableGUIElement;
class IniFile;
class LoadSaveSettingsDialog;
class ScrollBar;

/// Reads what was chosen from the document, or writes what shall be saved into it.
class ILoadSaveSettingsCallback {
public:
    virtual ~ILoadSaveSettingsCallback() = default;
    /// Loading: the section holds what the pilot chose. Saving (see isSaving()): the section is empty, and what is
    /// written into it is saved. False keeps the dialog open; the callback tells why.
    virtual bool OnResult(LoadSaveSettingsDialog* dialog, IniFile* document, const std::string& section) = 0;
};

/// Lets the pilot save settings under a name and find them again: in folders, to be renamed, thrown away, and exchanged
/// with another document. All of it is one document (see SettingsLibrary), written at each change.
///
///     LoadSaveSettingsDialog dialog(&callback, context, &plans, {L"Saved Flight Plans", plansPath, exchangePath});
///     dialog.run();
///
/// Nothing is replaced or thrown away without a question; what fails is told in a box, and nothing is lost by it. Main
/// thread only.
class LoadSaveSettingsDialog {
public:
    struct Options {
        std::wstring title;
        std::string path;         ///< The file of the document.
        std::string exchangePath; ///< The file that "Import" reads and "Export" writes; empty leaves both out.
        std::string name;         ///< Proposed for saving. UTF-8.
        bool canSave = true;
        bool canLoad = true;
    };

    /// Callback, context and document outlive the dialog.
    LoadSaveSettingsDialog(ILoadSaveSettingsCallback* callback, Context* context, IniFile* document, Options options);
    ~LoadSaveSettingsDialog();
    LoadSaveSettingsDialog(const LoadSaveSettingsDialog&) = delete;
    LoadSaveSettingsDialog& operator=(const LoadSaveSettingsDialog&) = delete;

    /// Comes back when something was loaded or saved (true), or nothing shall be.
    bool run();
    /// What the callback is asked for.
    bool isSaving() const { return saving_; }

private:
    using Item = SettingsLibrary::Item;
    using Outcome = SettingsLibrary::Outcome;
    /// One line of the list, its elements only to be compared. Without a name it leads back.
    struct Row {
        Item item;
        IAggregatableGUIElement* element = nullptr;
        irr::gui::IGUIElement* rename = nullptr;
        irr::gui::IGUIElement* bin = nullptr;
    };

    void build();
    void show();
    void makeRows(float share);
    Row makeRow(const Item& item, float share);
    void onEvent(const irr::SEvent& event);
    bool onButton(const irr::SEvent& event);
    void choose(const Item& item);
    void save();
    void load();
    void createFolder();
    void rename(const Item& item);
    void throwAway(const Item& item);
    void deleteAll();
    void importOrExport(bool isImport);
    /// Tells what went wrong, if anything did. Gives whether it went well.
    bool tell(Outcome outcome);
    bool ask(const std::wstring& question, const wchar_t* yes);
    std::string enteredName() const;
    irr::gui::IGUIElement* element(const char* id) const { return gui_->getElement(id); }

    ILoadSaveSettingsCallback* callback_;
    Context* context_;
    irr::gui::IGUIEnvironment* environment_;
    IniFile* document_;
    Options options_;
    SettingsLibrary library_;
    std::string folder_;
    std::string chosen_; ///< An entry of the folder, or empty.
    std::vector<Row> rows_;
    irr::gui::IGUIWindow* window_ = nullptr;
    std::unique_ptr<GUI> gui_;
    EngineRef<AggregateGUIElement> list_;
    EngineRef<AggregateGUIElement> formerList_; ///< So that no new row stands where one of a waiting event stood.
    ScrollBar* bar_ = nullptr;
    std::string shownFolder_; ///< Whose list is on the screen: it keeps its place when something in it changes.
    bool saving_ = false;
    bool open_ = false;
    bool done_ = false;
};

} // namespace skyvane
