#pragma once

#include "core/engine/EngineRef.h"
#include "gui/layout/EditorSchema.h"

#include <irrlicht.h>
#include <string>
#include <vector>

namespace skyvane {

/// The control of one row of an IniEditor, and the value in it. Main thread only.
class IniEditorField {
public:
    /// Shows the row's default. Label and element are made below the root; their layout takes them over.
    IniEditorField(irr::gui::IGUIEnvironment* environment, const EditorRow& row);

    void setValue(const std::wstring& value);
    std::wstring getValue() const;
    /// Ends choices in dots that are too long for their place, which the control has by now. The value stays whole.
    void fitChoices(irr::gui::IGUISkin& skin);
    /// Whether the value has the form of the row's type.
    bool isRight() const { return isCorrectType(getValue(), row_.type); }
    /// Whether "Ok" writes the value.
    bool isEditable() const;
    /// Whether the control is a button that shows a colour.
    bool isColor() const;
    bool hasAlpha() const { return row_.type == EditorValueType::COLOR_RGBA; }
    irr::video::SColor getColor() const { return color_; }
    void setColor(irr::video::SColor color) { color_ = color; }

    /// A marked field tells in colour and words beside its label what form its value must have.
    void setMarked(bool marked);

    const EditorRow& getRow() const { return row_; }
    irr::gui::IGUIElement* getElement() const { return element_.get(); }
    irr::gui::IGUIStaticText* getLabel() const { return label_.get(); }

private:
    irr::gui::IGUIElement* make(irr::gui::IGUIEnvironment* environment) const;
    irr::gui::IGUIElement* makeChoice(irr::gui::IGUIEnvironment* environment) const;
    irr::gui::IGUIElement* makeSwatch(irr::gui::IGUIEnvironment* environment) const;
    irr::gui::IGUIElement* makeElementButton(irr::gui::IGUIEnvironment* environment) const;
    irr::gui::IGUIComboBox* choice() const { return static_cast<irr::gui::IGUIComboBox*>(element_.get()); }
    irr::gui::IGUICheckBox* check() const { return static_cast<irr::gui::IGUICheckBox*>(element_.get()); }

    EditorRow row_;
    std::vector<std::wstring> choices_; ///< Of a ONE_OF row, as they stand in the document.
    irr::video::SColor color_{0xff000000};
    EngineRef<irr::gui::IGUIElement> element_;
    EngineRef<irr::gui::IGUIStaticText> label_;
};

} // namespace skyvane
