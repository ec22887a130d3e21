#include "displays/visionmath/LabelPicker.h"

#include <algorithm>
#include <tuple>

namespace skyvane {

bool LabelPicker::wasShown(int id) const {
    return std::binary_search(shown_.begin(), shown_.end(), id);
}

const std::vector<LabelPicker::Label>& LabelPicker::pick(size_t most, const irr::core::rect<int>& panel) {
    chosen_.clear();
    std::sort(labels_.begin(), labels_.end(), [this](const Label& a, const Label& b) {
        return std::make_tuple(-a.importance, !wasShown(a.id), a.metres, a.id) <
               std::make_tuple(-b.importance, !wasShown(b.id), b.metres, b.id);
    });
    for (const Label& label : labels_) {
        if (chosen_.size() >= most)
            break;
        const irr::core::rect<int>& place = label.place;
        const bool inside = place.UpperLeftCorner.X >= panel.UpperLeftCorner.X &&
                            place.LowerRightCorner.X <= panel.LowerRightCorner.X &&
                            place.UpperLeftCorner.Y >= panel.UpperLeftCorner.Y &&
                            place.LowerRightCorner.Y <= panel.LowerRightCorner.Y;
        const auto collides = [&place](const Label& other) { return other.place.isRectCollided(place); };
        if (inside && std::none_of(chosen_.begin(), chosen_.end(), collides))
            chosen_.push_back(label);
    }
    std::sort(chosen_.begin(), chosen_.end(), [](const Label& a, const Label& b) { return a.metres > b.metres; });
    shown_.clear();
    for (const Label& label : chosen_)
        shown_.push_back(label.id);
    std::sort(shown_.begin(), shown_.end());
    return chosen_;
}

} // namespace skyvane
