#include "gui/hypertext/DocumentCanvas.h"

#include "core/text/Numbers.h"
#include "gui/font/CachedText.h"
#include "gui/font/FlexibleFont.h"
#include "gui/hypertext/elements/Style.h"
#include "gui/hypertext/pages/PageHistory.h"

#include <utility>

namespace skyvane {
namespace {

constexpr double paddingShare = 0.0125;

class MeshText : public IDocText {
public:
    MeshText(FlexibleFont* font, const std::wstring& text, const Style& style)
        : scale_(style.scale), centered_(style.centered) {
        text_.set(font, text.c_str(), irr::video::SColor(style.textColor), style.centered);
    }
    void draw(const irr::core::rect<int>& place, const irr::core::rect<int>& clip) override {
        text_.draw(place, {scale_, scale_}, centered_, false, &clip);
    }

private:
    CachedText text_;
    float scale_;
    bool centered_;
};

} // namespace

DocumentCanvas::DocumentCanvas(irr::IrrlichtDevice* device) : device_(device), pictures_(device) {}

DocumentCanvas::~DocumentCanvas() = default;

void DocumentCanvas::setFont(FlexibleFont* font) {
    font_ = EngineRef<FlexibleFont>::share(font);
}

void DocumentCanvas::beginPage(const std::string& folder) {
    folder_ = folder;
    pictures_.clear();
}

std::string DocumentCanvas::takeTarget() {
    return std::exchange(target_, std::string());
}

irr::gui::IGUISkin* DocumentCanvas::skin() const {
    return device_->getGUIEnvironment()->getSkin();
}

int DocumentCanvas::getLinkPadding() const {
    return roundHalfAway(paddingShare * device_->getVideoDriver()->getScreenSize().Height);
}

uint32_t DocumentCanvas::getLinkColor() const {
    return skin()->getColor(irr::gui::EGDC_BUTTON_TEXT).color;
}

uint32_t DocumentCanvas::getPageColor() const {
    return skin()->getColor(irr::gui::EGDC_3D_HIGH_LIGHT).color;
}

std::unique_ptr<IDocText> DocumentCanvas::makeText(const std::wstring& text, const Style& style) {
    return std::make_unique<MeshText>(font_.get(), text, style);
}

std::unique_ptr<IDocPicture> DocumentCanvas::loadPicture(const std::string& name) {
    return isNameWithinFolder(name) ? pictures_.load(folder_ + name) : nullptr;
}

void DocumentCanvas::drawFilledRect(const Rect& rect, uint32_t color, const Rect& clip) {
    skin()->draw2DRectangle(nullptr, irr::video::SColor(color), rect, &clip);
}

void DocumentCanvas::drawFrame(const Rect& rect, uint32_t color, const Rect& clip) {
    const int left = rect.UpperLeftCorner.X, top = rect.UpperLeftCorner.Y;
    const int right = rect.LowerRightCorner.X, bottom = rect.LowerRightCorner.Y;
    for (const Rect& side : {Rect(left, top, right, top + 1), Rect(left, bottom - 1, right, bottom),
                             Rect(left, top, left + 1, bottom), Rect(right - 1, top, right, bottom)})
        drawFilledRect(side, color, clip);
}

void DocumentCanvas::drawButton(const Rect& rect, bool pressed, const Rect& clip) {
    pressed ? skin()->draw3DButtonPanePressed(nullptr, rect, &clip)
            : skin()->draw3DButtonPaneStandard(nullptr, rect, &clip);
}

} // namespace skyvane
