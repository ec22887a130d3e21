#pragma once

#include "gui/layout/EditorSchema.h"
#include "gui/windows/BackButton.h"

#include <irrlicht.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

class AggregateGUIElement;
class Context;
class IniEditorField;
class IniFile;

/// Edits settings of a document in a dialog that fills the screen, built from one line of text:
///
///     IniEditor editor(context, "GDL 90", L"port,Port:,4000,INT;flavor,Flavor:,Generic\\;Talos,ONE_OF;", nullptr);
///     if (editor.run(&document)) ... "Ok" was pressed, the values are in the document ...
///
/// The keys stand in the unnamed section, colours in either form of EditorValues.h. A value of the wrong form keeps the
/// dialog open, which scrolls to it and marks it. Chart elements are shown, and stay as they are. Main thread only.
class IniEditor {
public:
    using ValueType = EditorValueType;

    /// Texts in UTF-8, `rows` of each. With a `helpFile` there is a Help button for that page. The context outlives the
    /// editor.
    IniEditor(Context* context, std::string title, int rows, std::string* keys, std::string* labels,
              std::string* defaults, ValueType* types, const char* helpFile);
    IniEditor(Context* context, std::string title, const std::wstring& schema, const char* helpFile);
    ~IniEditor();
    IniEditor(const IniEditor&) = delete;
    IniEditor& operator=(const IniEditor&) = delete;

    /// Opens the dialog on the document, which outlives it; what the document lacks shows its default.
    void edit(IniFile* document);
    /// The same, and waits for the answer. Gives the success.
    bool run(IniFile* document);
    bool isVisible() const { return window_ != nullptr; }
    void processEvent(const irr::SEvent& event);
    /// Draws the dialog alone, for a caller that doesn't draw the whole GUI.
    void render();

    bool success = false; ///< Whether "Ok" ended the dialog.

private:
    void init();
    irr::gui::IGUIButton* addButton(const wchar_t* label, const char* style, double place);
    void createGUI();
    int rowHeight(int labelWidth) const;
    void addScrollBar(const irr::core::rect<irr::s32>& place);
    IniEditorField* markWrongFields();
    void unmarkRighted(const irr::gui::IGUIElement* element);
    void accept();
    void chooseColor(IniEditorField& field);
    void removeGUI();

    Context* context_;
    irr::gui::IGUIEnvironment* environment_;
    std::wstring title_;
    std::string helpFile_;
    std::vector<EditorRow> rows_;
    std::vector<std::unique_ptr<IniEditorField>> fields_;
    IniFile* document_ = nullptr;
    irr::gui::IGUIWindow* window_ = nullptr;
    AggregateGUIElement* pane_ = nullptr;
    irr::gui::IGUIButton* ok_ = nullptr;
    irr::gui::IGUIButton* help_ = nullptr;
    irr::gui::IGUIButton* cancel_ = nullptr;
    std::optional<BackButton> back_; ///< While the dialog is open.
};

} // namespace skyvane
