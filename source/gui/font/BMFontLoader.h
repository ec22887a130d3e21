#pragma once

#include "gui/font/IFontLoader.h"

namespace skyvane {

class FlexibleFontManager;

/// Loads the text form of BMFont (".fnt") with the page picture that lies beside it.
class BMFontLoader : public IFontLoader {
public:
    /// The manager owns the loader and outlives it.
    explicit BMFontLoader(FlexibleFontManager* manager);

    bool isALoadableFileExtension(const std::string& extension) const override;
    FlexibleFont* loadFont(irr::io::IReadFile* file) override;

private:
    irr::video::ITexture* loadPage(const std::string& path) const;

    FlexibleFontManager* manager_;
};

} // namespace skyvane
