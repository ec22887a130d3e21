#pragma once

#include <irrlicht.h>
#include <string>
#include <vector>

namespace skyvane {

/// The five dials as a plain program would draw them: a list of textured quads, each with a call of its own, at rest.
/// The baseline of the page's frame: the same pictures at the same sizes and places, nothing read, nothing decided.
class PlainPage {
public:
    /// `media` is the folder of the rendered drawings, with a slash.
    PlainPage(irr::video::IVideoDriver* driver, const std::string& media);

    void draw();
    size_t quadCount() const { return quads_.size(); }

private:
    struct Quad {
        irr::video::ITexture* texture;
        irr::video::S3DVertex vertices[4];
    };

    void addDial(const std::string& media, const irr::core::rect<int>& place,
                 const std::vector<std::pair<std::string, irr::core::rect<float>>>& layers);
    void addQuad(irr::video::ITexture* texture, const irr::core::rect<float>& screen);

    irr::video::IVideoDriver* driver_;
    irr::video::SMaterial material_;
    std::vector<Quad> quads_;
};

} // namespace skyvane
