#include "gui/windows/IniEditor.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "core/ini/IniFile.h"
#include "core/text/Utf8.h"
#include "gui/elements/AggregatableGUIElementAdapter.h"
#include "gui/elements/AggregateGUIElement.h"
#include "gui/elements/ColorSelector.h"
#include "gui/skin/Skin.h"
#include "gui/windows/GUI.h"
#include "gui/windows/IniEditorField.h"
#include "gui/windows/WindowTools.h"

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;

AggregateGUIElement::Options layoutOf(float space, bool horizontal) {
    AggregateGUIElement::Options options;
    options.wish.recommendedSpace = space;
    options.horizontal = horizontal;
    return options;
}

IAggregatableGUIElement* space(irr::gui::IGUIEnvironment* environment, float weight) {
    return new AggregatableGUIElement(environment, LayoutWish{weight}, -1, nullptr);
}

/// Label on the left, control of a button's height on the right.
IAggregatableGUIElement* makeRow(irr::gui::IGUIEnvironment* environment, const IniEditorField& field, float share) {
    irr::gui::IGUIStaticText* label =
        environment->addStaticText(field.getRow().label.c_str(), Rect(0, 0, 1, 1), false, true);
    label->setTextAlignment(irr::gui::EGUIA_UPPERLEFT, irr::gui::EGUIA_CENTER);
    auto* control =
        new AggregateGUIElement(environment, layoutOf(0.5f, false),
                                {space(environment, 0.25f),
                                 new AggregatableGUIElementAdapter(environment, field.getElement(), LayoutWish{1.0f}),
                                 space(environment, 0.25f)},
                                {});
    return new AggregateGUIElement(environment, layoutOf(share, true),
                                   {space(environment, 0.03f),
                                    new AggregatableGUIElementAdapter(environment, label, LayoutWish{0.44f}), control,
                                    space(environment, 0.03f)},
                                   {});
}

} // namespace

IniEditor::IniEditor(Context* context, std::string title, int rows, std::string* keys, std::string* labels,
                     std::string* defaults, ValueType* types, const char* helpFile)
    : IniEditor(context, std::move(title), L"", helpFile) {
    for (int i = 0; i < rows; ++i)
        rows_.push_back({decodeUtf8(keys[i]), decodeUtf8(labels[i]), decodeUtf8(defaults[i]), types[i]});
}

IniEditor::IniEditor(Context* context, std::string title, const std::wstring& schema, const char*)
    : context_(context), environment_(context->getIrrlichtDevice()->getGUIEnvironment()), title_(decodeUtf8(title)),
      rows_(parseEditorSchema(schema)) {}

IniEditor::~IniEditor() {
    removeGUI();
}

void IniEditor::edit(IniFile* document) {
    removeGUI();
    document_ = document;
    success = false;
    init();
    createGUI();
    for (const auto& field : fields_) {
        const std::string key = encodeUtf8(field->getRow().key);
        if (document->isAvailable("", key))
            field->setValue(decodeUtf8(document->get("", key)));
    }
}

bool IniEditor::run(IniFile* document) {
    edit(document);
    ModalLoop loop(*context_->getFrames(),
                   {[this](const irr::SEvent& event) { processEvent(event); }, ModalFrame::Backdrop::Grey});
    if (!loop.run([this] { return isVisible(); }))
        removeGUI();
    return success;
}

void IniEditor::init() {
    window_ = environment_->addWindow(environment_->getRootGUIElement()->getAbsolutePosition(), true);
    window_->getCloseButton()->setVisible(false);
    window_->setDraggable(false);
    window_->setDrawTitlebar(false);
    const Rect area = windowArea(window_);
    irr::gui::IGUIStaticText* title = environment_->addStaticText(
        title_.c_str(), Rect(0, 0, area.getWidth(), context_->getRecommendedButtonHeight() * 3 / 2), false, true,
        window_);
    title->setTextAlignment(irr::gui::EGUIA_CENTER, irr::gui::EGUIA_CENTER);
    cancel_ = addButton(L"Cancel", "redNormal", irr::gui::EGUIA_UPPERLEFT);
    ok_ = addButton(L"Ok", "greenNormal", irr::gui::EGUIA_LOWERRIGHT);
    context_->getEvents()->setBackButton(cancel_);
}

irr::gui::IGUIButton* IniEditor::addButton(const wchar_t* label, const char* style, irr::gui::EGUI_ALIGNMENT side) {
    const Rect area = windowArea(window_);
    const int height = context_->getRecommendedButtonHeight();
    const int width = context_->getRecommendedButtonWidth() * 3 / 2;
    const int left = side == irr::gui::EGUIA_UPPERLEFT ? height / 2 : area.getWidth() - height / 2 - width;
    const int top = area.getHeight() - height - height / 4;
    irr::gui::IGUIButton* button =
        environment_->addButton(Rect(left, top, left + width, top + height), window_, -1, label);
    Skin::setButtonStyle(button, style);
    return button;
}

void IniEditor::createGUI() {
    const Rect area = windowArea(window_);
    const int rowHeight = context_->getRecommendedButtonHeight() * 3 / 2;
    const Rect pane(rowHeight / 6, rowHeight, area.getWidth() - rowHeight / 6, area.getHeight() - rowHeight);
    AggregateGUIElement::Elements rows;
    for (const EditorRow& row : rows_) {
        fields_.push_back(std::make_unique<IniEditorField>(environment_, row));
        rows.push_back(makeRow(environment_, *fields_.back(),
                               static_cast<float>(rowHeight) / static_cast<float>(pane.getHeight())));
    }
    AggregateGUIElement::Options options = layoutOf(1.0f, false);
    options.scrollable = true;
    (new AggregateGUIElement(environment_, options, rows, {}, window_, pane))->drop();
}

void IniEditor::processEvent(const irr::SEvent& event) {
    if (isClickOf(event, ok_))
        accept();
    else if (isClickOf(event, cancel_))
        removeGUI();
    else
        for (const auto& field : fields_)
            if (field->isColor() && isClickOf(event, field->getElement()))
                return chooseColor(*field);
}

void IniEditor::chooseColor(IniEditorField& field) {
    ColorSelector selector(context_, field.getColor());
    selector.select(field.hasAlpha());
    if (selector.lastSuccess())
        field.setColor(selector.getColor());
    context_->getEvents()->setBackButton(cancel_);
}

void IniEditor::accept() {
    for (const auto& field : fields_)
        if (!field->isRight()) {
            environment_->setFocus(field->getElement());
            return;
        }
    for (const auto& field : fields_)
        if (field->isEditable())
            document_->set("", encodeUtf8(field->getRow().key), encodeUtf8(field->getValue()));
    success = true;
    removeGUI();
}

void IniEditor::removeGUI() {
    fields_.clear();
    removeWindow(window_);
    window_ = nullptr;
    ok_ = nullptr;
    cancel_ = nullptr;
}

void IniEditor::render() {
    if (window_)
        window_->draw();
}

} // namespace skyvane
