#include "gui/windows/NumberEditBox.h"

#include "core/text/Numbers.h"
#include "core/text/Utf8.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;
constexpr int doubleEditId = -2;
const wchar_t* const captions[4] = {L"--", L"-", L"+", L"++"};

} // namespace

NumberEditBox::NumberEditBox(irr::gui::IGUIEnvironment* environment, irr::gui::IGUIElement* parent, irr::s32 id,
                             const Rect& rect, double value, const Range& range)
    : IGUIElement(irr::gui::EGUIET_ELEMENT, environment, parent ? parent : environment->getRootGUIElement(), id, rect),
      range_(range) {
    if (range_.minimum > range_.maximum)
        std::swap(range_.minimum, range_.maximum);
    const int width = rect.getWidth();
    const int height = rect.getHeight();
    const int button = std::min(height * 3 / 2, width / 6);
    const int places[4] = {0, button, width - 2 * button, width - button};
    for (int i = 0; i < 4; ++i)
        buttons_[i] = environment->addButton(Rect(places[i], 0, places[i] + button, height), this, -1, captions[i]);
    edit_ = environment->addEditBox(L"", Rect(2 * button, 0, width - 2 * button, height), true, this, doubleEditId);
    edit_->setTextAlignment(irr::gui::EGUIA_CENTER, irr::gui::EGUIA_CENTER);
    setValue(value);
}

void NumberEditBox::setValue(double value) {
    value_ = std::clamp(std::isfinite(value) ? value : range_.minimum, range_.minimum, range_.maximum);
    edit_->setText(decodeUtf8(toFixedText(value_, range_.decimals)).c_str());
}

void NumberEditBox::change(double value) {
    const double former = value_;
    setValue(value);
    if (value_ == former || !Parent)
        return;
    irr::SEvent told{};
    told.EventType = irr::EET_GUI_EVENT;
    told.GUIEvent.Caller = this;
    told.GUIEvent.EventType = NumberChanged;
    Parent->OnEvent(told);
}

bool NumberEditBox::OnEvent(const irr::SEvent& event) {
    const double steps[4] = {-range_.largeStep, -range_.step, range_.step, range_.largeStep};
    for (int i = 0; i < 4; ++i)
        if (isClickOf(event, buttons_[i])) {
            change(value_ + steps[i]);
            return true;
        }
    const bool isEntered = event.EventType == irr::EET_GUI_EVENT && event.GUIEvent.Caller == edit_ &&
                           (event.GUIEvent.EventType == irr::gui::EGET_EDITBOX_ENTER ||
                            event.GUIEvent.EventType == irr::gui::EGET_ELEMENT_FOCUS_LOST);
    if (isEntered)
        change(toDouble(encodeUtf8(edit_->getText()), value_));
    return IGUIElement::OnEvent(event);
}

} // namespace skyvane
