#include "displays/vision/LabelView.h"

#include "chart/geodesy/LocalFrame.h"
#include "core/Context.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/vision/ElementScene.h"
#include "displays/vision/SceneStage.h"
#include "gui/font/FlexibleFont.h"
#include "gui/skin/Skin.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr double leastHeight = 22.0, heightShare = 1.0 / 32.0; // of a label, by the panel's shorter side
constexpr double poleHeights = 1.6;
constexpr uint32_t poleColor = 0xc0ffffff;
const irr::video::SColor background(0xb0101820);

} // namespace

void LabelView::queue(const SceneStage& stage, const ElementScene& elements, const ChartPosition& aircraft,
                      int height) {
    picker_.clear();
    shown_.clear();
    const auto offset = ChartPosition2Vector3df64(aircraft, elements.getOrigin(), 0.0);
    for (const SceneLabel& label : elements.getLabels()) {
        const auto direction = label.place + offset - stage.getPose().position;
        const auto foot = stage.getLens().project(stage.getPose(), direction);
        if (!foot || label.size.Height == 0)
            continue;
        const int width = static_cast<int>(label.size.Width * height / label.size.Height) + height / 2;
        const int left = static_cast<int>(foot->X) - width / 2;
        const int bottom = static_cast<int>(foot->Y - poleHeights * height);
        picker_.add({{left, bottom - height, left + width, bottom}, label.importance, direction.getLength(), label.id});
        shown_.push_back({&label, *foot});
    }
}

LabelView::Slot& LabelView::slotOf(int id) {
    Slot* free = slots_.data();
    for (Slot& slot : slots_) {
        if (slot.id == id)
            return slot;
        if (!slot.used)
            free = &slot;
    }
    free->id = id;
    return *free;
}

void LabelView::draw(const SceneStage& stage, const ElementScene& elements, const ChartPosition& aircraft,
                     const irr::core::rect<int>& panel, const irr::core::rect<int>& free) {
    const int height =
        static_cast<int>(std::max(leastHeight, heightShare * std::min(panel.getWidth(), panel.getHeight())));
    queue(stage, elements, aircraft, height);
    const std::vector<LabelPicker::Label>& chosen = picker_.pick(mostShown, free - panel.UpperLeftCorner);
    if (chosen.empty())
        return;
    const auto find = [this](int id) {
        return std::find_if(shown_.begin(), shown_.end(), [id](const Shown& each) { return each.label->id == id; });
    };
    for (Slot& slot : slots_)
        slot.used = std::any_of(chosen.begin(), chosen.end(), [&](const auto& label) { return label.id == slot.id; });
    shapes_.clear();
    const ShapeRect view(0, 0, panel.getWidth(), panel.getHeight());
    for (const LabelPicker::Label& label : chosen) {
        pole_.clear();
        pole_.emplace_back(label.place.getCenter().X, label.place.LowerRightCorner.Y);
        pole_.push_back(find(label.id)->foot);
        addStroke(shapes_, pole_, {1.5f, poleColor}, view);
    }
    Drawer2D* drawer = context_->getDrawer();
    drawer->setViewPort(panel);
    drawer->draw(shapes_);
    if (const ButtonTexture* pane = context_->getSkin()->getButtonTexture("label3DBg"))
        for (const LabelPicker::Label& label : chosen)
            pane->drawTinted(label.place, nullptr, background);
    drawer->resetViewPort();
    for (const LabelPicker::Label& label : chosen) {
        const SceneLabel& source = *find(label.id)->label;
        Slot& slot = slotOf(label.id);
        slot.used = true;
        slot.text.set(context_->getFlexibleFont(), source.text.data(), source.color);
        const float scale = 0.92f * static_cast<float>(height) / static_cast<float>(source.size.Height);
        const irr::core::vector2d<int> centre = label.place.getCenter();
        slot.text.drawRotated(panel, {static_cast<float>(centre.X), static_cast<float>(centre.Y)}, {scale, scale},
                              0.0f);
    }
}

} // namespace skyvane
