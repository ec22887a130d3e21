#include "gui/windows/IniEditorField.h"

#include "core/text/Numbers.h"
#include "core/text/Utf8.h"

namespace skyvane {
namespace {

using Type = EditorValueType;
const irr::core::rect<irr::s32> laidOutLater(0, 0, 1, 1);

} // namespace

IniEditorField::IniEditorField(irr::gui::IGUIEnvironment* environment, const EditorRow& row)
    : row_(row), element_(EngineRef<irr::gui::IGUIElement>::share(make(environment))) {
    if (row_.type != Type::ONE_OF)
        setValue(row_.standard);
}

irr::gui::IGUIElement* IniEditorField::make(irr::gui::IGUIEnvironment* environment) const {
    switch (row_.type) {
    case Type::INT:
    case Type::DOUBLE:
    case Type::STRING:
        return environment->addEditBox(L"", laidOutLater, true, nullptr, -1 - static_cast<int>(row_.type));
    case Type::ONE_OF:
        return makeChoice(environment);
    case Type::BOOLEAN:
        return environment->addCheckBox(false, laidOutLater);
    default:
        irr::gui::IGUIStaticText* text = environment->addStaticText(L"", laidOutLater);
        text->setTextAlignment(irr::gui::EGUIA_UPPERLEFT, irr::gui::EGUIA_CENTER);
        return text;
    }
}

irr::gui::IGUIElement* IniEditorField::makeChoice(irr::gui::IGUIEnvironment* environment) const {
    irr::gui::IGUIComboBox* box = environment->addComboBox(laidOutLater);
    for (const std::wstring& alternative : row_.getAlternatives())
        box->addItem(alternative.c_str());
    box->setSelected(box->getItemCount() > 0 ? 0 : -1);
    return box;
}

bool IniEditorField::isEditable() const {
    return row_.type <= Type::BOOLEAN || row_.type == Type::ONE_OF;
}

void IniEditorField::setValue(const std::wstring& value) {
    if (row_.type == Type::BOOLEAN)
        return check()->setChecked(toBool(encodeUtf8(value)));
    if (row_.type != Type::ONE_OF)
        return element_->setText(value.c_str());
    for (irr::u32 i = 0; i < choice()->getItemCount(); ++i)
        if (value == choice()->getItem(i))
            choice()->setSelected(static_cast<irr::s32>(i));
}

std::wstring IniEditorField::getValue() const {
    if (row_.type == Type::BOOLEAN)
        return check()->isChecked() ? L"1" : L"0";
    if (row_.type != Type::ONE_OF)
        return element_->getText();
    const irr::s32 selected = choice()->getSelected();
    return selected < 0 ? std::wstring() : choice()->getItem(static_cast<irr::u32>(selected));
}

} // namespace skyvane
