#pragma once

#include <array>
#include <irrlicht.h>

namespace skyvane {

/// A window in which a colour is mixed: a slider for each of red, green, blue and, where wanted, alpha, and the colour
/// itself. It stands in the middle of the screen, in sizes of the skin's buttons. Main thread only.
class ColorWindow {
public:
    enum class Answer { None, Ok, Cancel };

    /// Without alpha the colour keeps the one it has.
    ColorWindow(irr::gui::IGUIEnvironment* environment, irr::video::SColor color, bool withAlpha);
    ~ColorWindow();
    ColorWindow(const ColorWindow&) = delete;
    ColorWindow& operator=(const ColorWindow&) = delete;

    /// What the user decided with this event.
    Answer processEvent(const irr::SEvent& event);
    irr::video::SColor getColor() const { return color_; }
    irr::gui::IGUIWindow* getWindow() const { return window_; }
    irr::gui::IGUIButton* getHelpButton() const { return help_; }
    irr::gui::IGUIButton* getCancelButton() const { return cancel_; }

private:
    static constexpr std::size_t alphaChannel = 3;
    struct Channel {
        irr::gui::IGUIStaticText* label = nullptr;
        irr::gui::IGUIScrollBar* slider = nullptr;
    };

    void addChannels(int width, int rowHeight);
    void addButtons(int width, int top);
    void showChannel(std::size_t channel);
    unsigned valueOf(std::size_t channel) const;
    void readSliders();

    irr::gui::IGUIEnvironment* environment_;
    irr::video::SColor color_;
    std::size_t channelCount_;
    irr::gui::IGUIWindow* window_ = nullptr;
    std::array<Channel, 4> channels_;
    irr::gui::IGUIButton* ok_ = nullptr;
    irr::gui::IGUIButton* help_ = nullptr; ///< Its owner opens the page.
    irr::gui::IGUIButton* cancel_ = nullptr;
};

} // namespace skyvane
