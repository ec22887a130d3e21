#pragma once

#include "displays/instruments/PanelTexture.h"

namespace skyvane {

class Context;

/// The pictures of a map. Maps share the textures; the last one takes them from the driver.
struct MapImages {
    explicit MapImages(Context* context);

    PanelTexture plane;
    PanelTexture nose;
    PanelTexture noseSegment;
    PanelTexture noseSegmentBig;
    PanelTexture cross;
    PanelTexture crossGreen;
    PanelTexture oneDirection;
    PanelTexture course;
    PanelTexture entry;
    PanelTexture proceeding;
    PanelTexture traffic;
    PanelTexture compassGround;
    PanelTexture compassNeedle;
    PanelTexture compassNeedleNorth;
    PanelTexture zoomBar;
    PanelTexture label;
    PanelTexture terrainGradient;
    PanelTexture white;
};

} // namespace skyvane
