#pragma once

#include "gui/hypertext/Document.h"

#include <array>
#include <irrlicht.h>
#include <string>

namespace skyvane {

class FlexibleFont;

/// A Document as an element of the GUI, on a sunken pane, with buttons above it: back, forward, larger, smaller and the
/// usual size. Scrolls by finger, wheel and keys.
class CHyperTextElement : public irr::gui::IGUIElement {
public:
    struct Options {
        int barHeight = 0;   ///< Of the buttons; 0 for none.
        int buttonWidth = 0; ///< They get no wider.
    };

    /// Shows a page of a folder. The parent keeps the element; who made it drops it.
    CHyperTextElement(irr::IrrlichtDevice* device, const irr::core::rect<int>& rect, irr::gui::IGUIElement* parent,
                      const std::string& file, const char* dir, const Options& options);
    /// Shows a text of `size` bytes.
    CHyperTextElement(irr::IrrlichtDevice* device, const irr::core::rect<int>& rect, irr::gui::IGUIElement* parent,
                      const char* text, int size, const Options& options);

    void setHTI(const char* text, int size) { document_.setHTI(text, size); }
    bool gotoFile(const std::string& file, const char* dir) { return document_.gotoFile(file, dir, true); }
    /// Its default scale is that of the text. Null shows nothing.
    void setFlexibleFont(FlexibleFont* font);
    /// The page keeps clear of what lies over it there, in pixels of the screen; the buttons stay. Empty for nothing.
    void keepClear(const irr::core::rect<int>& cover) { cover_ = cover; }
    std::string toHTML(const std::string& title) const { return document_.toHTML(title); }
    const Document& getDocument() const { return document_; }

    void draw() override;
    bool OnEvent(const irr::SEvent& event) override;
    void updateAbsolutePosition() override;

private:
    enum Button { Backwards, Forwards, Larger, Smaller, Usual, ButtonCount };

    void init();
    void placeButtons();
    void press(Button button);
    bool processKey(const irr::SEvent::SKeyInput& key);
    irr::core::rect<int> pageRect() const;
    Style baseStyle() const;
    void drawScrollMark(const irr::core::rect<int>& page, int margin);

    Options options_;
    Document document_;
    irr::core::rect<int> cover_;
    FlexibleFont* font_ = nullptr;                             ///< Held by the document.
    std::array<irr::gui::IGUIButton*, ButtonCount> buttons_{}; ///< Children; null without a bar.
};

} // namespace skyvane
