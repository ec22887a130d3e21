#include "gui/hypertext/Document.h"

#include "core/engine/AssetFiles.h"
#include "core/log/Logger.h"
#include "core/time/Time.h"
#include "gui/font/FlexibleFont.h"
#include "gui/hypertext/elements/Html.h"
#include "gui/hypertext/markup/ParseHypertext.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr double clickShare = 0.05;
constexpr int smallestSize = -8;
constexpr int largestSize = 12;
constexpr float wheelShare = 0.12f;

} // namespace

Document::Document(irr::IrrlichtDevice* device, const char* text, int size, const char* dir)
    : device_(device), canvas_(device), scroll_(clickShare) {
    init(dir);
    setHTI(text, size);
}

Document::Document(irr::IrrlichtDevice* device, const std::string& file, const char* dir)
    : device_(device), canvas_(device), scroll_(clickShare) {
    init(dir);
    gotoFile(file, nullptr, true);
}

void Document::init(const char* dir) {
    folder_ = dir && *dir ? dir : "./";
    if (folder_.back() != '/')
        folder_ += '/';
    canvas_.beginPage(folder_);
}

void Document::setHTI(const char* text, int size) {
    file_.clear();
    show(text && size > 0 ? std::string(text, static_cast<size_t>(size)) : std::string());
}

void Document::show(const std::string& text) {
    root_.reset();
    canvas_.beginPage(folder_);
    canvas_.takeTarget();
    root_ = parseHypertext(text);
    if (!root_)
        logText("A page of hypertext can't be shown, its markup is wrong: " + (file_.empty() ? "a text" : file_) +
                "\n");
    laidOut_ = false;
    scroll_ = FingerScroll(clickShare);
    mouseState_ = MouseState::Idle;
    pressed_ = pressWaits_ = false;
}

bool Document::open(const std::string& file, const std::string& folder) {
    std::string text;
    if (!isNameWithinFolder(file) || !readFileWithAssetSupport(device_->getFileSystem(), folder + file, text))
        return false;
    folder_ = folder;
    file_ = file;
    show(text);
    return true;
}

bool Document::gotoFile(const std::string& file, const char* dir, bool addToHistory) {
    std::string folder = dir && *dir ? dir : folder_;
    if (folder.back() != '/')
        folder += '/';
    if (addToHistory && file == file_ && folder == folder_)
        return true;
    const std::string before = file_;
    if (!open(file, folder))
        return false;
    if (addToHistory)
        history_.leave(before);
    return true;
}

void Document::Backwards() {
    if (history_.hasBackward())
        gotoFile(history_.goBackwards(file_), nullptr, false);
}

void Document::Forwards() {
    if (history_.hasForward())
        gotoFile(history_.goForwards(file_), nullptr, false);
}

void Document::setFont(FlexibleFont* font) {
    canvas_.setFont(font);
    laidOut_ = false;
}

void Document::setSize(int size) {
    size_ = std::clamp(size, smallestSize, largestSize);
}

bool Document::processEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_MOUSE_INPUT_EVENT)
        return false;
    const irr::SEvent::SMouseInput& mouse = event.MouseInput;
    mouse_ = irr::core::vector2d<int>(mouse.X, mouse.Y);
    switch (mouse.Event) {
    case irr::EMIE_LMOUSE_PRESSED_DOWN:
        return processPress(mouse);
    case irr::EMIE_LMOUSE_LEFT_UP:
        scroll_.release(Secs());
        return std::exchange(pressed_, false);
    case irr::EMIE_MOUSE_MOVED:
        if (pressed_)
            scroll_.move(mouse.Y);
        return pressed_;
    case irr::EMIE_MOUSE_WHEEL:
        scrollByView(mouse.Wheel < 0.0f ? wheelShare : -wheelShare);
        return true;
    default:
        return false;
    }
}

bool Document::processPress(const irr::SEvent::SMouseInput& mouse) {
    if (!view_.isPointInside(mouse_))
        return false;
    pressed_ = pressWaits_ = true;
    scroll_.press(mouse.Y);
    return true;
}

void Document::scrollByView(float share) {
    scroll_.moveBy(-static_cast<int>(share * static_cast<float>(view_.getHeight())));
}

/// A press and a release that come between two frames are a click all the same; a drag is none.
void Document::updateMouse() {
    const bool down = mouseState_ == MouseState::JustPressed || mouseState_ == MouseState::Held;
    if (scroll_.isDragged())
        mouseState_ = MouseState::Idle;
    else if (pressWaits_)
        mouseState_ = MouseState::JustPressed;
    else if (down)
        mouseState_ = pressed_ ? MouseState::Held : MouseState::Released;
    else
        mouseState_ = MouseState::Idle;
    pressWaits_ = false;
}

void Document::layOut(const Style& style, const irr::core::rect<int>& rect) {
    Style wanted = style;
    wanted.font = canvas_.getFont() ? &canvas_.getFont()->getFontDefintion() : nullptr;
    wanted.applySize(size_);
    if (!laidOut_ || wanted != style_ || rect.getWidth() != width_) {
        const float share = scroll_.getShare();
        rootRect_ = root_->calcRelativeViewPort(canvas_, wanted, rect.getWidth());
        scroll_.setLengths(rootRect_.LowerRightCorner.Y, rect.getHeight());
        scroll_.setShare(share);
        style_ = wanted;
        width_ = rect.getWidth();
        laidOut_ = true;
        ++layouts_;
    }
    if (rect.getHeight() != view_.getHeight())
        scroll_.setLengths(rootRect_.LowerRightCorner.Y, rect.getHeight());
}

void Document::render(const Style& style, const irr::core::rect<int>& rect) {
    updateMouse();
    const std::string target = canvas_.takeTarget();
    if (!target.empty())
        gotoFile(target, nullptr, true);
    if (root_)
        layOut(style, rect);
    view_ = rect;
    if (!root_)
        return;
    scroll_.update(Secs());
    const irr::core::vector2d<int> corner = rect.UpperLeftCorner + irr::core::vector2d<int>(0, scroll_.getOffset());
    DocPass pass{canvas_, rect, mouseState_, mouse_};
    root_->render(irr::core::rect<int>(corner, corner + irr::core::vector2d<int>(width_, 0)), pass);
}

std::string Document::toHTML(const std::string& title) const {
    return makeHTMLPage(title, root_ ? root_->toHTML() : std::string());
}

} // namespace skyvane
