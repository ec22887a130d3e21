#pragma once

#include "core/engine/EngineRef.h"
#include "gui/windows/GUI.h"

#include <irrlicht.h>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class Context;

/// A screen with a list of things that the pilot makes, edits and deletes, and buttons beside it. Who derives from it
/// says what is in the list and what the buttons do. Main thread only.
class ListScreen {
public:
    virtual ~ListScreen();
    ListScreen(const ListScreen&) = delete;
    ListScreen& operator=(const ListScreen&) = delete;

    /// Until "Cancel"; sensors and drawing go on.
    void run();

protected:
    struct Texts {
        const wchar_t* label;      ///< Above the list.
        const wchar_t* more = L""; ///< On a further button; none without.
        const char* helpPage = "";
    };

    ListScreen(Context& context, const Texts& texts);

    virtual std::vector<std::string> names() = 0; ///< UTF-8
    virtual void onSelect(int) {}
    virtual void onNew() = 0;
    virtual void onEdit(int index) = 0;
    virtual void onDelete(int index) = 0;
    virtual void onMore(int) {}

    /// Fills the list anew with that entry selected, or none for -1.
    void refresh(int selected);
    Context& context_;

private:
    void onEvent(const irr::SEvent& event);
    void onClick(const irr::SEvent& event);
    void enableButtons();
    irr::gui::IGUIElement* element(const char* id) const { return gui_->getElement(id); }
    irr::gui::IGUIListBox* list() const { return static_cast<irr::gui::IGUIListBox*>(element("llist")); }

    std::string helpPage_;
    EngineRef<irr::gui::IGUIWindow> window_;
    std::unique_ptr<GUI> gui_;
    bool open_ = false;
};

} // namespace skyvane
