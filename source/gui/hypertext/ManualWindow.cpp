#include "gui/hypertext/ManualWindow.h"

#include "core/Context.h"
#include "core/events/EventReceiver.h"
#include "core/files/Paths.h"
#include "gui/hypertext/CHyperTextElement.h"
#include "gui/hypertext/pages/PageHistory.h"
#include "gui/skin/Skin.h"
#include "gui/windows/WindowTools.h"

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;

std::string folderOf(Context* context) {
    return context->getPath("media/doc/");
}

} // namespace

bool ManualWindow::hasPage(Context* context, const std::string& page) {
    return isNameWithinFolder(page) && fileExist(folderOf(context) + page);
}

ManualWindow::ManualWindow(Context* context, const std::string& page)
    : context_(context), backBefore_(context->getEvents()->getBackButton()) {
    irr::gui::IGUIEnvironment* environment = context->getIrrlichtDevice()->getGUIEnvironment();
    const Rect screen = environment->getRootGUIElement()->getAbsolutePosition();
    window_ = EngineRef<irr::gui::IGUIWindow>::share(environment->addWindow(screen, true));
    window_->getCloseButton()->setVisible(false);
    window_->setDraggable(false);
    window_->setDrawTitlebar(false);
    const int height = context->getRecommendedButtonHeight(), width = context->getRecommendedButtonWidth();
    const int gap = height / 6;
    const int bottom = screen.getHeight() - height - 2 * gap;
    element_ = new CHyperTextElement(context->getIrrlichtDevice(), Rect(gap, gap, screen.getWidth() - gap, bottom),
                                     window_.get(), page, folderOf(context).c_str(), {height, width});
    element_->drop();
    element_->setFlexibleFont(context->getFlexibleFont());
    const int middle = screen.getWidth() / 2;
    back_ = environment->addButton(Rect(middle - width, bottom + gap, middle + width, bottom + gap + height),
                                   window_.get(), -1, L"Back");
    context->getEvents()->setBackButton(back_);
    environment->setFocus(element_);
}

ManualWindow::~ManualWindow() {
    removeWindow(window_.get());
    context_->getEvents()->setBackButton(backBefore_);
}

bool ManualWindow::isClosedBy(const irr::SEvent& event) const {
    return isClickOf(event, back_);
}

void ManualWindow::keepClear(const irr::core::rect<int>& cover) {
    element_->keepClear(cover);
}

void ManualWindow::gotoPage(const std::string& page) {
    element_->gotoFile(page, nullptr);
}

} // namespace skyvane
