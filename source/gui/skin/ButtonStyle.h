#pragma once

#include "core/engine/EngineRef.h"

#include <array>
#include <irrlicht.h>

namespace skyvane {

/// How a button looks: its kind and, where set, a colour per corner, an image and a colour of the text.
struct ButtonStyle {
    enum Style {
        Normal,     ///< a plain button
        Vis,        ///< with a mark that shows whether it is pressed
        Row,        ///< a wide row of a list
        Transparent ///< the image alone
    };

    /// `colors`: upper left, upper right, lower left, lower right; copied. Null leaves a thing unset.
    ButtonStyle(Style kind, const irr::video::SColor* colors, irr::video::ITexture* picture,
                const irr::video::SColor* colorOfText)
        : style(kind), hasColors(colors != nullptr), image(EngineRef<irr::video::ITexture>::share(picture)),
          hasTextColor(colorOfText != nullptr) {
        for (std::size_t i = 0; colors && i < cornerColors.size(); ++i)
            cornerColors[i] = colors[i];
        if (colorOfText)
            textColor = *colorOfText;
    }

    Style style;
    bool hasColors;
    std::array<irr::video::SColor, 4> cornerColors;
    EngineRef<irr::video::ITexture> image;
    bool hasTextColor;
    irr::video::SColor textColor;
};

} // namespace skyvane
