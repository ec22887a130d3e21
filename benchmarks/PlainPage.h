#pragma once

#include "displays/instruments/DialText.h"

#include <irrlicht.h>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

/// A page as a plain program would draw it: a list of textured quads, each with a call of its own, and ready text
/// meshes; nothing read, nothing decided, nothing moved. The baseline of the page's frame: the same pictures at the
/// same sizes and places.
class PlainPage {
public:
    /// `media` is the folder of the rendered drawings, with a slash.
    PlainPage(irr::video::IVideoDriver* driver, std::string media);

    /// What the panel of that factory shows, at rest; nothing for a kind that isn't a picture.
    void addPanel(int factoryIndex, const irr::core::rect<int>& place);
    /// A value field: its ground and two texts.
    void addField(const irr::core::rect<int>& place, FlexibleFont* font);
    /// A glider panel: the grounds of its cells and a text in each.
    void addGlider(const irr::core::rect<int>& place, FlexibleFont* font);

    void draw();

private:
    struct Quad {
        irr::video::ITexture* texture;
        irr::video::S3DVertex vertices[4];
    };
    struct Text {
        DialText text;
        irr::core::rect<int> box;
    };

    void addQuad(irr::video::ITexture* texture, const irr::core::rect<float>& screen, irr::video::SColor color);
    void addText(const wchar_t* text, const irr::core::rect<int>& box, FlexibleFont* font);
    irr::video::ITexture* load(const std::string& name) const;

    irr::video::IVideoDriver* driver_;
    std::string media_;
    irr::video::SMaterial material_;
    std::vector<Quad> quads_;
    std::vector<std::unique_ptr<Text>> texts_;
};

} // namespace skyvane
