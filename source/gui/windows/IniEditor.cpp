#include "gui/windows/IniEditor.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/ini/IniFile.h"
#include "core/text/Utf8.h"
#include "gui/elements/AggregatableGUIElementAdapter.h"
#include "gui/elements/AggregateGUIElement.h"
#include "gui/elements/ColorSelector.h"
#include "gui/elements/ScrollBar.h"
#include "gui/font/MakeWordWrappedText.h"
#include "gui/layout/EditorValues.h"
#include "gui/skin/Skin.h"
#include "gui/windows/GUI.h"
#include "gui/windows/Help.h"
#include "gui/windows/IniEditorField.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;

constexpr float margin = 0.02f, gap = 0.015f; ///< Shares of a row.

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
IAggregatableGUIElement* makeRow(irr::gui::IGUIEnvironment* environment, const IniEditorField& field, float share,
                                 float labelShare) {
    auto* control =
        new AggregateGUIElement(environment, layoutOf(1.0f - 2.0f * margin - gap - labelShare, false),
                                {space(environment, 0.25f),
                                 new AggregatableGUIElementAdapter(environment, field.getElement(), LayoutWish{1.0f}),
                                 space(environment, 0.25f)},
                                {});
    return new AggregateGUIElement(
        environment, layoutOf(share, true),
        {space(environment, margin),
         new AggregatableGUIElementAdapter(environment, field.getLabel(), LayoutWish{labelShare}),
         space(environment, gap), control, space(environment, margin)},
        {});
}

} // namespace

IniEditor::IniEditor(Context* context, std::string title, int rows, std::string* keys, std::string* labels,
                     std::string* defaults, ValueType* types, const char* helpFile)
    : IniEditor(context, std::move(title), L"", helpFile) {
    for (int i = 0; i < rows; ++i)
        rows_.push_back({decodeUtf8(keys[i]), decodeUtf8(labels[i]), decodeUtf8(defaults[i]), types[i]});
}

IniEditor::IniEditor(Context* context, std::string title, const std::wstring& schema, const char* helpFile)
    : context_(context), environment_(context->getIrrlichtDevice()->getGUIEnvironment()), title_(decodeUtf8(title)),
      helpFile_(helpFile ? helpFile : ""), rows_(parseEditorSchema(schema)) {}

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
        if (const auto value = readEditorValue(*document, field->getRow()))
            field->setValue(decodeUtf8(*value));
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
    cancel_ = addButton(L"Cancel", "redNormal", 0.0);
    if (!helpFile_.empty()) {
        help_ = addButton(L"Help", "", 0.5);
        prepareHelpButton(context_, help_, helpFile_.c_str());
    }
    ok_ = addButton(L"Ok", "greenNormal", 1.0);
    back_.emplace(context_->getEvents(), cancel_);
}

/// At a share of the way from the left end of the bottom line to its right end.
irr::gui::IGUIButton* IniEditor::addButton(const wchar_t* label, const char* style, double place) {
    const Rect area = windowArea(window_);
    const int height = context_->getRecommendedButtonHeight();
    const int width = context_->getRecommendedButtonWidth() * 3 / 2;
    const int left = height / 2 + static_cast<int>(place * (area.getWidth() - height - width));
    const int top = area.getHeight() - height - height / 4;
    irr::gui::IGUIButton* button =
        environment_->addButton(Rect(left, top, left + width, top + height), window_, -1, label);
    Skin::setButtonStyle(button, style);
    return button;
}

void IniEditor::createGUI() {
    const Rect area = windowArea(window_);
    const int standardRow = context_->getRecommendedButtonHeight() * 3 / 2;
    const int bar = environment_->getSkin()->getSize(irr::gui::EGDS_SCROLLBAR_SIZE);
    const Rect pane(standardRow / 6, standardRow, area.getWidth() - standardRow / 6 - bar,
                    area.getHeight() - standardRow);
    const float labelShare = context_->isPortrait() ? 0.56f : 0.44f; // a narrow screen has less room for long labels
    const float share = static_cast<float>(rowHeight(static_cast<int>(labelShare * pane.getWidth()))) /
                        static_cast<float>(pane.getHeight());
    AggregateGUIElement::Elements rows;
    for (const EditorRow& row : rows_) {
        fields_.push_back(std::make_unique<IniEditorField>(environment_, row));
        rows.push_back(makeRow(environment_, *fields_.back(), share, labelShare));
    }
    AggregateGUIElement::Options options = layoutOf(1.0f, false);
    options.scrollable = true;
    pane_ = new AggregateGUIElement(environment_, options, rows, {}, window_, pane);
    pane_->drop();
    for (const auto& field : fields_)
        field->fitChoices(*environment_->getSkin());
    if (pane_->canScroll())
        addScrollBar(
            {pane.LowerRightCorner.X, pane.UpperLeftCorner.Y, pane.LowerRightCorner.X + bar, pane.LowerRightCorner.Y});
}

/// One and a half buttons, or more where the pilot's letters are so large that a label would be cut.
int IniEditor::rowHeight(int labelWidth) const {
    irr::gui::IGUIFont* font = environment_->getSkin()->getFont();
    const int button = context_->getRecommendedButtonHeight();
    int tallest = 0;
    for (const EditorRow& row : rows_) {
        const std::wstring label = makeWordWrappedText(row.label, static_cast<unsigned>(std::max(labelWidth, 1)), font);
        tallest = std::max(tallest, font ? static_cast<int>(font->getDimension(label.c_str()).Height) : 0);
    }
    return std::max(button * 3 / 2, tallest + button / 4);
}

void IniEditor::addScrollBar(const Rect& place) {
    auto* bar = new ScrollBar(environment_, 1.0f, false, -1, nullptr, LayoutWish(), window_, place);
    bar->linkToScrollable(pane_);
    bar->drop();
}

void IniEditor::processEvent(const irr::SEvent& event) {
    if (event.EventType == irr::EET_GUI_EVENT && event.GUIEvent.EventType == irr::gui::EGET_EDITBOX_CHANGED)
        unmarkRighted(event.GUIEvent.Caller);
    if (isClickOf(event, ok_))
        accept();
    else if (isClickOf(event, cancel_))
        removeGUI();
    else if (isClickOf(event, help_))
        showHelp(context_, helpFile_.c_str());
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
}

/// A wrong value that became right while it is typed.
void IniEditor::unmarkRighted(const irr::gui::IGUIElement* element) {
    for (const auto& field : fields_)
        if (field->getElement() == element && field->isRight())
            field->setMarked(false);
}

/// Gives the first of them.
IniEditorField* IniEditor::markWrongFields() {
    IniEditorField* first = nullptr;
    for (const auto& field : fields_) {
        field->setMarked(!field->isRight());
        if (!first && !field->isRight())
            first = field.get();
    }
    return first;
}

void IniEditor::accept() {
    if (IniEditorField* wrong = markWrongFields()) {
        pane_->scrollTo(wrong->getElement()->getParent());
        environment_->setFocus(wrong->getElement());
        return;
    }
    for (const auto& field : fields_)
        if (field->isEditable())
            writeEditorValue(*document_, field->getRow(), encodeUtf8(field->getValue()));
    success = true;
    removeGUI();
}

void IniEditor::removeGUI() {
    fields_.clear();
    back_.reset();
    removeWindow(window_);
    window_ = nullptr;
    pane_ = nullptr;
    ok_ = nullptr;
    help_ = nullptr;
    cancel_ = nullptr;
}

void IniEditor::render() {
    if (window_)
        window_->draw();
}

} // namespace skyvane
