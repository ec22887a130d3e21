#include "gui/font/BMFontLoader.h"

#include "core/engine/EngineRef.h"
#include "core/log/Logger.h"
#include "gui/font/FlexibleFont.h"
#include "gui/glyphs/FntText.h"
#include <vector>

namespace skyvane {

namespace {

constexpr long largestFile = 32 << 20;

std::vector<char> readWhole(irr::io::IReadFile* file) {
    const long size = file->getSize();
    if (size <= 0 || size > largestFile)
        return {};
    std::vector<char> bytes(static_cast<size_t>(size));
    file->seek(0);
    const irr::s32 got = file->read(bytes.data(), static_cast<irr::u32>(size));
    bytes.resize(got > 0 ? static_cast<size_t>(got) : 0);
    return bytes;
}

std::string folderOf(const std::string& path) {
    const size_t separator = path.find_last_of("/\\");
    return separator == std::string::npos ? std::string() : path.substr(0, separator + 1);
}

/// Sets a texture creation flag for as long as it lives.
class CreationFlag {
public:
    CreationFlag(irr::video::IVideoDriver* driver, irr::video::E_TEXTURE_CREATION_FLAG flag, bool value)
        : driver_(driver), flag_(flag), before_(driver->getTextureCreationFlag(flag)) {
        driver_->setTextureCreationFlag(flag_, value);
    }
    ~CreationFlag() { driver_->setTextureCreationFlag(flag_, before_); }
    CreationFlag(const CreationFlag&) = delete;
    CreationFlag& operator=(const CreationFlag&) = delete;

private:
    irr::video::IVideoDriver* driver_;
    irr::video::E_TEXTURE_CREATION_FLAG flag_;
    bool before_;
};

} // namespace

BMFontLoader::BMFontLoader(FlexibleFontManager* manager) : manager_(manager) {}

bool BMFontLoader::isALoadableFileExtension(const std::string& extension) const {
    return irr::core::stringc(extension.c_str()).equals_ignore_case("fnt");
}

FlexibleFont* BMFontLoader::loadFont(irr::io::IReadFile* file) {
    const std::string path = file->getFileName().c_str();
    const std::vector<char> bytes = readWhole(file);
    const FntText text = parseFntText(bytes.data(), bytes.size());
    if (!text.error.empty()) {
        logText("Font " + path + " can't be used: " + text.error + "\n");
        return nullptr;
    }
    IFontLoader::Font font;
    static_cast<FontDefinition&>(font) = text.definition;
    font.page = loadPage(folderOf(path) + text.pageFile);
    if (!font.page)
        return nullptr;
    font.convertFontCoords2TexCoords(font.page->getOriginalSize(), false);
    return new FlexibleFont(manager_, font);
}

irr::video::ITexture* BMFontLoader::loadPage(const std::string& path) const {
    logText("Loading tex for font: " + path + "\n");
    irr::video::IVideoDriver* driver = manager_->getDevice()->getVideoDriver();
    const CreationFlag withoutMipMaps(driver, irr::video::ETCF_CREATE_MIP_MAPS, false);
    const CreationFlag with32Bits(driver, irr::video::ETCF_ALWAYS_32_BIT, true);
    irr::video::ITexture* page = driver->getTexture(path.c_str());
    if (!page)
        logText("Can't load the texture of a font: " + path + "\n");
    return page;
}

} // namespace skyvane
