#pragma once

#include "gui/hypertext/elements/IDocCanvas.h"

#include <irrlicht.h>
#include <map>
#include <memory>
#include <string>

namespace skyvane {

/// The pictures of the page that is shown, each read once. PNG files alone; a page can't hold more than so many pixels.
class DocumentPictures {
public:
    /// The device outlives this.
    explicit DocumentPictures(irr::IrrlichtDevice* device) : device_(device) {}

    /// Null for a picture that can't be shown: the first of a page goes to the log.
    std::unique_ptr<IDocPicture> load(const std::string& path);
    /// Another page begins.
    void clear();

    static constexpr size_t mostPixels = 16 << 20;

private:
    class Source;
    class Picture;

    std::shared_ptr<Source> read(const std::string& path);

    irr::IrrlichtDevice* device_;
    std::map<std::string, std::shared_ptr<Source>> sources_; ///< By path; null for what can't be shown.
    size_t pixels_ = 0;
    bool complained_ = false;
};

} // namespace skyvane
