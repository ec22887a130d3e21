#pragma once

#include <irrlicht.h>

namespace skyvane {

/// A number with four buttons around it: large step down, step down, step up, large step up. What is typed or stepped
/// is brought to the bounds; a change sends the parent NumberChanged with the box as Caller. The parent holds the box;
/// main thread only.
class NumberEditBox : public irr::gui::IGUIElement {
public:
    static constexpr irr::gui::EGUI_EVENT_TYPE NumberChanged = static_cast<irr::gui::EGUI_EVENT_TYPE>(31);

    struct Range {
        double minimum;
        double maximum;
        double step;
        double largeStep;
        int decimals = 0;
    };

    /// Bounds in the wrong order change places.
    NumberEditBox(irr::gui::IGUIEnvironment* environment, irr::gui::IGUIElement* parent, irr::s32 id,
                  const irr::core::rect<irr::s32>& rect, double value, const Range& range);

    double getValue() const { return value_; }
    /// Brought to the bounds; sends nothing.
    void setValue(double value);
    bool OnEvent(const irr::SEvent& event) override;

private:
    void change(double value);

    Range range_;
    double value_ = 0.0;
    irr::gui::IGUIEditBox* edit_ = nullptr;
    irr::gui::IGUIButton* buttons_[4] = {};
};

} // namespace skyvane
