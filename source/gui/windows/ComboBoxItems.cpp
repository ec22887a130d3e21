#include "gui/windows/ComboBoxItems.h"

#include <algorithm>
#include <irrlicht.h>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;

constexpr int rimPixels = 4;
const char* const watcherName = "item height";

/// An unseen child of the combo box: the box makes its list anew at each opening, and this one sees it before it is
/// drawn first.
class OpenListWatcher : public irr::gui::IGUIElement {
public:
    OpenListWatcher(irr::gui::IGUIComboBox* box, int pixels)
        : IGUIElement(irr::gui::EGUIET_ELEMENT, nullptr, box, -1, Rect(0, 0, 0, 0)), box_(box), pixels_(pixels) {
        setName(watcherName);
    }
    void setPixels(int pixels) { pixels_ = pixels; }
    bool isPointInside(const irr::core::position2di&) const override { return false; }

    void draw() override {
        for (irr::gui::IGUIElement* sibling : box_->getChildren())
            if (sibling->getType() == irr::gui::EGUIET_LIST_BOX)
                arrange(static_cast<irr::gui::IGUIListBox*>(sibling));
    }

private:
    void arrange(irr::gui::IGUIListBox* list) const {
        const Rect place = placeOf(static_cast<int>(box_->getItemCount()));
        if (list->getRelativePosition() == place)
            return;
        list->setItemHeight(pixels_);
        list->setRelativePosition(place);
    }

    Rect placeOf(int items) const {
        const irr::gui::IGUIElement* root = box_;
        while (root->getParent())
            root = root->getParent();
        const Rect box = box_->getAbsolutePosition();
        const int below = root->getAbsolutePosition().LowerRightCorner.Y - box.LowerRightCorner.Y;
        const int above = box.UpperLeftCorner.Y - root->getAbsolutePosition().UpperLeftCorner.Y;
        const int wanted = std::max(items, 1) * pixels_ + rimPixels;
        const bool isBelow = wanted <= below || below >= above;
        const int height = std::min(wanted, isBelow ? below : above);
        return isBelow ? Rect(0, box.getHeight(), box.getWidth(), box.getHeight() + height)
                       : Rect(0, -height, box.getWidth(), 0);
    }

    irr::gui::IGUIComboBox* box_;
    int pixels_;
};

OpenListWatcher* findWatcher(const irr::gui::IGUIComboBox* box) {
    for (irr::gui::IGUIElement* child : box->getChildren())
        if (irr::core::stringc(child->getName()) == watcherName)
            return static_cast<OpenListWatcher*>(child);
    return nullptr;
}

} // namespace

void SetComboBoxItemHeight(irr::gui::IGUIComboBox* box, int pixels) {
    if (OpenListWatcher* watcher = findWatcher(box))
        watcher->setPixels(std::max(pixels, 1));
    else
        (new OpenListWatcher(box, std::max(pixels, 1)))->drop();
}

} // namespace skyvane
