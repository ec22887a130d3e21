#include "gui/windows/IniEditorField.h"

#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "gui/elements/ColorSwatch.h"
#include "gui/windows/ListRows.h"

#include <algorithm>

namespace skyvane {
namespace {

using Type = EditorValueType;
const irr::core::rect<irr::s32> laidOutLater(0, 0, 1, 1);
/// Bright on the dark pane, and not the red of a button.
const irr::video::SColor wrongColor(0xffff7a6b);

/// Lets the button beneath have the clicks.
class ButtonSwatch : public ColorSwatch {
public:
    using ColorSwatch::ColorSwatch;
    bool isPointInside(const irr::core::position2di&) const override { return false; }
};

} // namespace

IniEditorField::IniEditorField(irr::gui::IGUIEnvironment* environment, const EditorRow& row)
    : row_(row), choices_(row.type == Type::ONE_OF ? row.getAlternatives() : std::vector<std::wstring>()),
      element_(EngineRef<irr::gui::IGUIElement>::share(make(environment))),
      label_(EngineRef<irr::gui::IGUIStaticText>::share(
          environment->addStaticText(row.label.c_str(), laidOutLater, false, true))) {
    label_->setTextAlignment(irr::gui::EGUIA_UPPERLEFT, irr::gui::EGUIA_CENTER);
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
    case Type::COLOR_RGB:
    case Type::COLOR_RGBA:
        return makeSwatch(environment);
    case Type::CHARTELEMENT:
        return makeElementButton(environment);
    default:
        irr::gui::IGUIStaticText* text = environment->addStaticText(L"", laidOutLater);
        text->setTextAlignment(irr::gui::EGUIA_UPPERLEFT, irr::gui::EGUIA_CENTER);
        return text;
    }
}

irr::gui::IGUIElement* IniEditorField::makeChoice(irr::gui::IGUIEnvironment* environment) const {
    irr::gui::IGUIComboBox* box = environment->addComboBox(laidOutLater);
    for (const std::wstring& choice : choices_)
        box->addItem(choice.c_str());
    box->setSelected(box->getItemCount() > 0 ? 0 : -1);
    return box;
}

/// The swatch keeps its share of the button, whatever place that is given.
irr::gui::IGUIElement* IniEditorField::makeSwatch(irr::gui::IGUIEnvironment* environment) const {
    irr::gui::IGUIButton* button = environment->addButton({0, 0, 100, 100});
    auto* swatch = new ButtonSwatch(environment, color_, button, {5, 20, 95, 80});
    swatch->setAlignment(irr::gui::EGUIA_SCALE, irr::gui::EGUIA_SCALE, irr::gui::EGUIA_SCALE, irr::gui::EGUIA_SCALE);
    swatch->drop();
    return button;
}

/// Shows the element that the document names. It can't be pressed while there is no search for another.
irr::gui::IGUIElement* IniEditorField::makeElementButton(irr::gui::IGUIEnvironment* environment) const {
    irr::gui::IGUIButton* button = environment->addButton(laidOutLater);
    button->setEnabled(false);
    return button;
}

void IniEditorField::fitChoices(irr::gui::IGUISkin& skin) {
    if (row_.type != Type::ONE_OF)
        return;
    const irr::s32 selected = choice()->getSelected();
    fillChoice(choice(), skin, choices_);
    choice()->setSelected(selected);
}

void IniEditorField::setMarked(bool marked) {
    const std::wstring form = row_.type == Type::INT ? L"  A whole number, please." : L"  A number, please.";
    label_->setText((marked ? row_.label + form : row_.label).c_str());
    if (marked)
        label_->setOverrideColor(wrongColor);
    else
        label_->enableOverrideColor(false);
}

bool IniEditorField::isColor() const {
    return row_.type == Type::COLOR_RGB || row_.type == Type::COLOR_RGBA;
}

bool IniEditorField::isEditable() const {
    return row_.type <= Type::BOOLEAN || row_.type == Type::ONE_OF || isColor();
}

void IniEditorField::setValue(const std::wstring& value) {
    if (row_.type == Type::BOOLEAN)
        return check()->setChecked(toBool(encodeUtf8(value)));
    if (isColor()) {
        const EditorColor c = EditorColor::parse(encodeUtf8(value));
        color_.set(hasAlpha() ? c.alpha : 255, c.red, c.green, c.blue);
        return;
    }
    if (row_.type != Type::ONE_OF)
        return element_->setText(value.c_str());
    const auto chosen = std::find(choices_.begin(), choices_.end(), value);
    if (chosen != choices_.end())
        choice()->setSelected(static_cast<irr::s32>(chosen - choices_.begin()));
}

std::wstring IniEditorField::getValue() const {
    if (row_.type == Type::BOOLEAN)
        return check()->isChecked() ? L"1" : L"0";
    if (isColor()) {
        const auto number = [](irr::u32 component) { return static_cast<int>(component); };
        const EditorColor c{number(color_.getRed()), number(color_.getGreen()), number(color_.getBlue()),
                            number(color_.getAlpha())};
        return decodeUtf8(c.toText(hasAlpha()));
    }
    if (row_.type != Type::ONE_OF)
        return element_->getText();
    const irr::s32 selected = choice()->getSelected();
    return selected < 0 ? std::wstring() : choices_[static_cast<std::size_t>(selected)];
}

} // namespace skyvane
