#include "core/engine/MipmappedTexture.h"
#include "core/log/Logger.h"
#include "gui/skin/Skin.h"
#include "gui/skin/SkinSprites.h"

namespace skyvane {

using irr::video::SColor;

namespace {

struct TextureFile {
    const char* name;
    const char* file;
    float cornerOfShort;
    float cornerOfScreen;
};

constexpr TextureFile textureFiles[] = {
    {"bNormal", "button_normal", 0.3f, 0.018f},
    {"bPressed", "button_normal_pressed", 0.3f, 0.018f},
    {"button", "button", 0.3f, 0.018f},
    {"buttonPressed", "button_pressed", 0.3f, 0.018f},
    {"sunkenPane", "sunkenPaneBg", 0.3f, 0.014f},
    {"sunkenPaneAlpha", "sunkenPaneBgAlpha", 0.3f, 0.014f},
    {"guiRectangle", "guiRectangle", 0.25f, 0.014f},
    {"sunkenPaneFlat", "sunkenPaneFlat", 0.3f, 0.014f},
    {"windowBg", "windowBg", 0.25f, 0.02f},
    {"windowShadow", "windowShadow", 0.25f, 0.04f},
    {"pfdRect", "pfdRect", 0.25f, 0.012f},
    {"pfdLabel", "pfdLabel", 0.3f, 0.012f},
    {"pfdLabel2", "pfdLabel2", 0.3f, 0.012f},
    {"labelBg", "labelBg", 0.3f, 0.012f},
    {"label3DBg", "label3DBg", 0.3f, 0.014f},
    {"drawing", "drawing", 0.25f, 0.014f},
};

constexpr irr::u32 whiteText = 0xffffffff, blackText = 0xff05070a;

struct ColorStyle {
    const char* name;
    ButtonStyle::Style style;
    irr::u32 color;
    irr::u32 text;
};

/// Deep colours under white text, light ones under black: every pair has a contrast of at least 4.5 to 1.
constexpr irr::u32 blue = 0xff2a6fc4, green = 0xff12803a, red = 0xffc62436, yellow = 0xffffd21f, magenta = 0xffb43bbd,
                   brown = 0xff8a5a2b, orange = 0xffff9a2e, cyan = 0xff38c6da, grey = 0xff66717f, standard = 0xff435061;
constexpr ColorStyle colorStyles[] = {
    {"blueVis", ButtonStyle::Vis, blue, whiteText},         {"blueRow", ButtonStyle::Row, blue, whiteText},
    {"greenNormal", ButtonStyle::Normal, green, whiteText}, {"greenRow", ButtonStyle::Row, green, whiteText},
    {"redNormal", ButtonStyle::Normal, red, whiteText},     {"redRow", ButtonStyle::Row, red, whiteText},
    {"yellowVis", ButtonStyle::Vis, yellow, whiteText},     {"yellowRow", ButtonStyle::Row, yellow, blackText},
    {"magentaVis", ButtonStyle::Vis, magenta, whiteText},   {"magentaRow", ButtonStyle::Row, magenta, whiteText},
    {"brownVis", ButtonStyle::Vis, brown, whiteText},       {"brownRow", ButtonStyle::Row, brown, whiteText},
    {"orangeVis", ButtonStyle::Vis, orange, whiteText},     {"orangeRow", ButtonStyle::Row, orange, blackText},
    {"cyanVis", ButtonStyle::Vis, cyan, whiteText},         {"cyanRow", ButtonStyle::Row, cyan, blackText},
    {"greyVis", ButtonStyle::Vis, 0xffc3ccd8, whiteText},   {"greyRow", ButtonStyle::Row, grey, whiteText},
    {"stdRow", ButtonStyle::Row, standard, whiteText},      {"stdNormal", ButtonStyle::Normal, 0, whiteText},
};

struct ImageStyle {
    const char* name;
    ButtonStyle::Style style;
    const char* image;
    irr::u32 color; ///< 0 for none
};

constexpr ImageStyle imageStyles[] = {
    {"roll_leftNormal", ButtonStyle::Normal, "roll_left", 0},
    {"roll_rightNormal", ButtonStyle::Normal, "roll_right", 0},
    {"yaw_leftNormal", ButtonStyle::Normal, "yaw_left", 0},
    {"yaw_rightNormal", ButtonStyle::Normal, "yaw_right", 0},
    {"pitch_upNormal", ButtonStyle::Normal, "pitch_up", 0},
    {"pitch_downNormal", ButtonStyle::Normal, "pitch_down", 0},
    {"directNormal", ButtonStyle::Normal, "direct", 0},
    {"procNormal", ButtonStyle::Normal, "proc", 0},
    {"direct2Normal", ButtonStyle::Normal, "direct2", 0},
    {"proc2Normal", ButtonStyle::Normal, "proc2", 0},
    {"directRow", ButtonStyle::Row, "direct", blue},
    {"procRow", ButtonStyle::Row, "procArrowUp", blue},
    {"procStdRow", ButtonStyle::Row, "procArrowDown", standard},
    {"menuRow", ButtonStyle::Row, "menu", blue},
    {"menuStdRow", ButtonStyle::Row, "menu", standard},
    {"binTransparent", ButtonStyle::Transparent, "bin", 0},
    {"renameTransparent", ButtonStyle::Transparent, "rename", 0},
};

/// The colour above, a little darker below.
std::array<SColor, 4> cornersOf(irr::u32 color) {
    const SColor top(color);
    const SColor bottom = SColor(0xff000000).getInterpolated(top, 0.14f);
    return {top, top, bottom, bottom};
}

} // namespace

void Skin::loadMedia(Drawer2D* drawer, const std::string& mediaFolder) {
    drawer_ = drawer;
    loadTextures(mediaFolder);
    addColorStyles();
    addImageStyles(mediaFolder);
    replaceSprites(mediaFolder);
}

void Skin::loadTextures(const std::string& mediaFolder) {
    panes_ = Panes();
    textures_.clear();
    for (const TextureFile& each : textureFiles)
        textures_.emplace(each.name,
                          ButtonTexture(environment_->getVideoDriver(), drawer_, mediaFolder + each.file + ".png",
                                        each.cornerOfShort, each.cornerOfScreen));
    for (const auto& [name, texture] : textures_) {
        if (!texture.isLoaded()) {
            logText("The skin lacks the drawing of " + name + ": the engine's own look stays.\n");
            return;
        }
    }
    panes_.normal = getButtonTexture("bNormal");
    panes_.pressed = getButtonTexture("bPressed");
    panes_.tintable = getButtonTexture("button");
    panes_.tintablePressed = getButtonTexture("buttonPressed");
    panes_.sunkenFill = getButtonTexture("sunkenPaneAlpha");
    panes_.sunkenRim = getButtonTexture("sunkenPane");
    panes_.flatRim = getButtonTexture("sunkenPaneFlat");
    panes_.rectangle = getButtonTexture("guiRectangle");
    panes_.window = getButtonTexture("windowBg");
    panes_.shadow = getButtonTexture("windowShadow");
}

void Skin::addColorStyles() {
    for (const ColorStyle& each : colorStyles) {
        const std::array<SColor, 4> corners = cornersOf(each.color);
        const SColor text(each.text);
        addButtonStyle(each.name, ButtonStyle(each.style, each.color ? corners.data() : nullptr, nullptr, &text));
    }
}

void Skin::addImageStyles(const std::string& mediaFolder) {
    for (const ImageStyle& each : imageStyles) {
        const std::array<SColor, 4> corners = cornersOf(each.color);
        addButtonStyle(each.name, ButtonStyle(each.style, each.color ? corners.data() : nullptr,
                                              loadImage(mediaFolder + each.image + ".png"), nullptr));
    }
}

void Skin::replaceSprites(const std::string& mediaFolder) {
    const auto sprites = EngineRef<SkinSprites>::adopt(
        new SkinSprites(drawer_,
                        {loadImage(mediaFolder + "tick.png"), loadImage(mediaFolder + "procArrowUp.png"),
                         loadImage(mediaFolder + "closeSign.png")},
                        getSize(irr::gui::EGDS_WINDOW_BUTTON_WIDTH)));
    setSpriteBank(sprites.get());
    for (int icon = 0; icon < irr::gui::EGDI_COUNT; ++icon)
        setIcon(static_cast<irr::gui::EGUI_DEFAULT_ICON>(icon), static_cast<irr::u32>(icon));
}

irr::video::ITexture* Skin::loadImage(const std::string& file) const {
    return loadMipmappedTexture(environment_->getVideoDriver(), file);
}

} // namespace skyvane
