#pragma once

#include "core/engine/EngineRef.h"
#include "gui/font/BMFontLoader.h"
#include "gui/font/FlexibleFont.h"
#include "gui/font/FlexibleFontManager.h"
#include "support/GlDevice.h"
#include "support/SourceFolder.h"
#include <string>

namespace skyvane {

/// A window with the font manager and the fonts that ship.
struct FontFixture {
    GlDevice gl;
    EngineRef<FlexibleFontManager> manager;

    FontFixture(unsigned width, unsigned height) : gl(width, height) {
        if (!gl)
            return;
        manager = EngineRef<FlexibleFontManager>::adopt(new FlexibleFontManager(gl.device()));
        const auto loader = EngineRef<BMFontLoader>::adopt(new BMFontLoader(manager.get()));
        manager->addFontLoader(loader.get());
    }

    FlexibleFont* load(const char* file) {
        FlexibleFont* font = manager->getFont(sourceFolder() + "media/sdff/" + file);
        if (font)
            font->setDefaultMaterialType(manager->getSDFFMaterialType());
        return font;
    }
};

} // namespace skyvane
