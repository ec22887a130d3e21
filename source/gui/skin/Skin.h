#pragma once

#include "gui/skin/ButtonStyle.h"
#include "gui/skin/ButtonTexture.h"
#include "gui/skin/IExtendableSkin.h"

#include <map>
#include <string>
#include <vector>

namespace skyvane {

/// The look of the program: named colours, textures and button styles over the engine's default skin, and every element
/// of the engine drawn with them.
///
///     skin->getColor("bg")                              // what the frame is cleared with
///     Skin::setButtonStyle(okButton, "greenNormal");    // how one button of the engine looks
///     skin->getButtonTexture("labelBg")->drawTinted(rect, nullptr, color);
///
/// Before loadMedia() everything looks as the engine draws it. The pictures follow transparency and brightness as the
/// default colours do. Nothing is allocated in a frame. Main thread only.
class Skin : public IExtendableSkin {
public:
    /// Over the environment's present skin, which stays alive beneath.
    explicit Skin(irr::gui::IGUIEnvironment* environment);

    /// Loads the textures and makes the named styles. `mediaFolder` with a trailing slash; the drawer is used until the
    /// skin is drawn for the last time. Elements with signs (scroll bars, combo boxes, windows) look right only when
    /// made afterwards. Where a drawing is missing, a line goes to the log and the engine's look stays.
    void loadMedia(Drawer2D* drawer, const std::string& mediaFolder);

    /// Pixels of a button that a finger hits; every other size of the GUI follows.
    void setButtonSize(int width, int height);

    void setColor(const std::string& name, irr::video::SColor color);
    /// The engine's colour 3 for an unknown name.
    irr::video::SColor getColor(const std::string& name) const;
    irr::video::SColor getColor(irr::gui::EGUI_DEFAULT_COLOR color) const override;
    using IExtendableSkin::setColor;

    /// Null for an unknown name.
    const ButtonTexture* getButtonTexture(const std::string& name) const;

    /// Replaces a style of the same name, which keeps its index.
    void addButtonStyle(const std::string& name, const ButtonStyle& style);
    /// Null for an unknown name or index.
    const ButtonStyle* getButtonStyle(const std::string& name) const;
    const ButtonStyle* getButtonStyle(unsigned index) const;
    unsigned getButtonStyleCount() const { return static_cast<unsigned>(styles_.size()); }
    /// From now on the button is drawn in this style. The style's name becomes the element's name.
    static void setButtonStyle(irr::gui::IGUIElement* button, const char* style) { button->setName(style); }
    /// The pane of the window covers the whole screen, also where the window itself doesn't.
    static void setWholeScreen(irr::gui::IGUIElement* window);

    /// A plain rounded rectangle in one colour, as rows, tracks and thumbs are drawn; a plain one before loadMedia().
    void drawRow(const Rect& rect, const Rect* clip, irr::video::SColor color) const;
    /// Null before loadMedia().
    Drawer2D* getDrawer() const { return drawer_; }

    void draw3DButtonPaneStandard(Element* element, const Rect& rect, const Rect* clip) override;
    void draw3DButtonPanePressed(Element* element, const Rect& rect, const Rect* clip) override;
    void draw3DSunkenPane(Element* element, irr::video::SColor background, bool flat, bool fillBackground,
                          const Rect& rect, const Rect* clip) override;
    Rect draw3DWindowBackground(Element* element, bool drawTitleBar, irr::video::SColor titleBarColor, const Rect& rect,
                                const Rect* clip, Rect* checkClientArea) override;
    void draw3DMenuPane(Element* element, const Rect& rect, const Rect* clip) override;
    void draw3DToolBar(Element* element, const Rect& rect, const Rect* clip) override;
    void draw3DTabButton(Element* element, bool active, const Rect& rect, const Rect* clip,
                         irr::gui::EGUI_ALIGNMENT alignment) override;
    void draw3DTabBody(Element* element, bool border, bool background, const Rect& rect, const Rect* clip,
                       irr::s32 tabHeight, irr::gui::EGUI_ALIGNMENT alignment) override;
    void drawIcon(Element* element, irr::gui::EGUI_DEFAULT_ICON icon, const irr::core::position2di position,
                  irr::u32 startTime, irr::u32 currentTime, bool loop, const Rect* clip) override;
    void draw2DRectangle(Element* element, const irr::video::SColor& color, const Rect& rect,
                         const Rect* clip) override;

private:
    /// The panes that every frame needs, found once. All null before loadMedia().
    struct Panes {
        const ButtonTexture* normal = nullptr;
        const ButtonTexture* pressed = nullptr;
        const ButtonTexture* tintable = nullptr;
        const ButtonTexture* tintablePressed = nullptr;
        const ButtonTexture* sunkenFill = nullptr;
        const ButtonTexture* sunkenRim = nullptr;
        const ButtonTexture* flatRim = nullptr;
        const ButtonTexture* rectangle = nullptr;
        const ButtonTexture* window = nullptr;
        const ButtonTexture* shadow = nullptr;
    };

    void loadTextures(const std::string& mediaFolder);
    void addColorStyles();
    void addImageStyles(const std::string& mediaFolder);
    void replaceSprites(const std::string& mediaFolder);
    irr::video::ITexture* loadImage(const std::string& file) const;

    const ButtonStyle* styleOf(Element* element) const;
    void drawButton(Element* element, const Rect& rect, const Rect* clip, bool pressed);
    void drawButtonFace(const ButtonStyle* style, bool enabled, const Rect& rect, const Rect* clip, bool pressed) const;
    void drawLamp(const ButtonStyle& style, bool enabled, const Rect& rect, const Rect* clip, bool pressed) const;
    void drawImage(irr::video::ITexture* image, Element* element, const Rect& rect, const Rect* clip) const;
    /// The colour as brightness and transparency leave it on a pane.
    irr::video::SColor paneTint(irr::video::SColor color) const;
    irr::video::SColor paneTint(bool enabled = true) const;

    irr::gui::IGUIEnvironment* environment_; ///< Owns the skin.
    Drawer2D* drawer_ = nullptr;
    std::map<std::string, irr::video::SColor> colors_;
    std::map<std::string, ButtonTexture> textures_;
    std::vector<ButtonStyle> styles_;
    std::map<std::string, unsigned, std::less<>> styleIndices_;
    Panes panes_;
    /// The colour of the text that the engine draws next, on the button whose pane was just drawn.
    mutable const ButtonStyle* nextText_ = nullptr;
};

} // namespace skyvane
