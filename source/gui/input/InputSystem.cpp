#include "gui/input/InputSystem.h"

#include "core/ICommonAppContext.h"
#include "core/engine/MipmappedTexture.h"
#include "core/engine/TouchEvents.h"
#include "core/events/EventReceiver.h"
#include "core/geometry/Rectangles.h"
#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "gui/input/KeyEvents.h"
#include "gui/input/KeyInput.h"
#include "gui/input/TouchKeyboard.h"
#include "gui/input/WipeInput.h"
#include "gui/keys/EditBoxId.h"
#include "gui/keys/InputColor.h"
#include "gui/keys/KeyCodes.h"
#include "gui/keys/KeyboardLayout.h"

#include <algorithm>
#include <optional>

namespace skyvane {

using irr::core::position2di;
using irr::core::recti;
using irr::video::SColor;

namespace {

constexpr int wipeSteps = 10;
constexpr int changeKeyRows = 5; ///< The change key is as high as a key of the text keyboard.
constexpr double fadeSeconds = 0.2;
constexpr double faintest = 0.4; ///< The first frame shows keys already, however slow frames are.
const SColor baredColor(0xff05070a);

std::vector<std::unique_ptr<IInput>> makeInputs(ICommonAppContext* context, SColor color,
                                                const std::vector<KeyboardDefinition>& keyboards) {
    std::vector<std::unique_ptr<IInput>> inputs;
    inputs.push_back(std::make_unique<KeyInput>());
    for (const KeyboardDefinition& keyboard : keyboards)
        inputs.push_back(std::make_unique<TouchKeyboard>(context, color, keyboard));
    inputs.push_back(std::make_unique<WipeInput>(context, color, wipeSteps));
    return inputs;
}

KeyPress::Kind kindOf(irr::EMOUSE_INPUT_EVENT event) {
    return event == irr::EMIE_LMOUSE_PRESSED_DOWN ? KeyPress::Kind::Press
           : event == irr::EMIE_LMOUSE_LEFT_UP    ? KeyPress::Kind::Release
                                                  : KeyPress::Kind::Move;
}

KeyPress::Kind kindOf(TouchEvent::Phase phase) {
    return phase == TouchEvent::Pressed ? KeyPress::Kind::Press
           : phase == TouchEvent::Left  ? KeyPress::Kind::Release
                                        : KeyPress::Kind::Move;
}

/// Wheel, other buttons and double clicks count as moves: they press nothing, and what lies behind the keys doesn't get
/// them.
std::optional<FingerTracker::Event> readFinger(const irr::SEvent& event) {
    if (isTouchEvent(event)) {
        const TouchEvent touch = unpackTouchEvent(event);
        return FingerTracker::Event{true, touch.id, kindOf(touch.phase), {touch.x, touch.y}};
    }
    if (event.EventType != irr::EET_MOUSE_INPUT_EVENT)
        return std::nullopt;
    const irr::SEvent::SMouseInput& mouse = event.MouseInput;
    return FingerTracker::Event{false, 0, kindOf(mouse.Event), {mouse.X, mouse.Y}};
}

irr::SEvent mouseEvent(const FingerTracker::Event& finger) {
    irr::SEvent event{};
    event.EventType = irr::EET_MOUSE_INPUT_EVENT;
    event.MouseInput.Event = finger.kind == KeyPress::Kind::Press     ? irr::EMIE_LMOUSE_PRESSED_DOWN
                             : finger.kind == KeyPress::Kind::Release ? irr::EMIE_LMOUSE_LEFT_UP
                                                                      : irr::EMIE_MOUSE_MOVED;
    event.MouseInput.X = finger.position.X;
    event.MouseInput.Y = finger.position.Y;
    event.MouseInput.ButtonStates = finger.kind == KeyPress::Kind::Release ? 0 : irr::EMBSM_LEFT;
    return event;
}

/// In the tree, with all its ancestors visible.
bool isTrulyVisible(const irr::gui::IGUIElement* element, const irr::gui::IGUIElement* root) {
    for (; element && element != root; element = element->getParent())
        if (!element->isVisible())
            return false;
    return element == root;
}

} // namespace

InputSystem::InputSystem(ICommonAppContext* context, const std::vector<KeyboardDefinition>& keyboards,
                         const std::string& changeImage)
    : context_(context), inputs_(makeInputs(context, SColor(), keyboards)),
      choice_(inputs_.size(), [this](std::size_t input, int id) { return inputs_[input]->isPreferredInput(id); }),
      changeImage_(EngineRef<irr::video::ITexture>::share(
          loadMipmappedTexture(context->getIrrlichtDevice()->getVideoDriver(), context->getPath(changeImage)))) {
    IniFile standard;
    loadInputSettingsFromIni(&standard);
    placeChangeKey();
    context_->getEventReceiver()->addSubEventReceiver(this);
}

InputSystem::~InputSystem() {
    context_->getEventReceiver()->removeSubEventReceiver(this);
}

void InputSystem::setColor(SColor color) {
    color_ = color;
    for (const std::unique_ptr<IInput>& input : inputs_)
        input->setColor(color);
}

void InputSystem::loadInputSettingsFromIni(IniFile* config) {
    setColor(SColor(readInputColor(*config)));
}

bool InputSystem::isActive() const {
    const irr::gui::IGUIElement* root = context_->getIrrlichtDevice()->getGUIEnvironment()->getRootGUIElement();
    return editBox_ && choice_.isAvailable() && isTrulyVisible(editBox_.get(), root);
}

bool InputSystem::isOnKeys(position2di position) const {
    return isShown() && (changeKey_->isAt(position) || current().isAt(position));
}

bool InputSystem::processEvent(const irr::SEvent& event) {
    const std::optional<FingerTracker::Event> finger = readFinger(event);
    if (!finger)
        return true;
    followFocus();
    const FingerTracker::Result result = fingers_.process(*finger, isOnKeys(finger->position));
    if (result.counts && result.isKept)
        type(*finger);
    return !result.isKept;
}

void InputSystem::type(const FingerTracker::Event& finger) {
    const irr::SEvent event = mouseEvent(finger);
    const bool wasPressed = changeKey_->isPressed();
    bool inside = false;
    if (changeKey_->processMouseEvent(event.MouseInput, &inside) && inside && wasPressed && !changeKey_->isPressed())
        return changeInput();
    if (!inside)
        current().processEvent(event);
}

void InputSystem::changeInput() {
    current().OnDeSelect();
    choice_.change();
    current().OnSelect();
    placeChangeKey();
}

/// At the left edge: on top of an input that reaches so far, else at the bottom.
void InputSystem::placeChangeKey() {
    const irr::core::dimension2di screen(context_->getIrrlichtDevice()->getVideoDriver()->getScreenSize());
    const int height = keyHeight(screen, context_->getRecommendedButtonHeight(), changeKeyRows);
    const int width = std::max(height, context_->getRecommendedButtonWidth());
    const recti cover = current().getCover();
    const int bottom = hasArea(cover) && cover.UpperLeftCorner.X < width ? cover.UpperLeftCorner.Y : screen.Height;
    changeKey_ = std::make_unique<TouchKey>(context_, 0, 0, irr::KEY_KEY_CODES_COUNT,
                                            recti(0, bottom - height, width, bottom), changeImage_.get());
}

/// The GUI's focus events don't reach the program from every dialog, so the focus is looked at.
void InputSystem::followFocus() {
    irr::gui::IGUIElement* focus = context_->getIrrlichtDevice()->getGUIEnvironment()->getFocus();
    irr::gui::IGUIElement* box = focus && focus->getType() == irr::gui::EGUIET_EDIT_BOX ? focus : nullptr;
    if (box == editBox_.get())
        return;
    current().OnDeSelect();
    changeKey_->reset();
    editBox_ = EngineRef<irr::gui::IGUIElement>::share(box);
    markingPending_ = box != nullptr;
    if (!box)
        return;
    choice_.select(box->getID());
    current().OnSelect();
    placeChangeKey();
}

/// What waits until no finger is down: a window mustn't move beneath one, and its lift would undo the marking.
void InputSystem::finishFocus() {
    if (fingers_.isDown())
        return;
    if (markingPending_)
        handleEditBoxMarking();
    markingPending_ = false;
    if (isActive())
        makeRoom();
    else
        lift_.lower();
}

void InputSystem::makeRoom() {
    covers_.clear();
    covers_.push_back(changeKey_->getRect());
    if (hasArea(current().getCover()))
        covers_.push_back(current().getCover());
    lift_.lift(editBox_.get(), covers_, changeKey_->getRect().getHeight() / 6);
}

void InputSystem::handleEditBoxMarking() {
    if (!editBox_)
        return;
    const EditBoxMarking marking = markingOf(editBox_->getID());
    irr::IrrlichtDevice* device = context_->getIrrlichtDevice();
    if (marking.cursorToEnd)
        typeKey(device, EndKey, 0);
    if (marking.selectAll)
        typeKey(device, LetterAKey, L'a', {false, true});
}

int InputSystem::getCoveredTop() const {
    const int height = static_cast<int>(context_->getIrrlichtDevice()->getVideoDriver()->getScreenSize().Height);
    const recti cover = current().getCover();
    return isShown() && hasArea(cover) ? cover.UpperLeftCorner.Y : height;
}

/// Comes up softly: what stands behind can be seen to stay.
SColor InputSystem::fadedColor() {
    const double now = Secs();
    if (!wasShown_)
        shownSince_ = now;
    wasShown_ = true;
    const double share = std::clamp((now - shownSince_) / fadeSeconds, faintest, 1.0);
    SColor color = color_;
    color.setAlpha(static_cast<irr::u32>(color_.getAlpha() * share));
    return color;
}

void InputSystem::update() {
    followFocus();
    finishFocus();
}

void InputSystem::render() {
    Drawer2D* drawer = context_->getDrawer();
    drawer->resetViewPort();
    drawer->drawFilledRect(lift_.getBared(), baredColor);
    drawer->flush();
    if (!isShown()) {
        wasShown_ = false;
        return;
    }
    const SColor color = fadedColor();
    current().setColor(color);
    changeKey_->render(nullptr, false, color);
    current().render();
    drawer->flush();
}

} // namespace skyvane
