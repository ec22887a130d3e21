#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/engine/EngineRef.h"

#include <irrlicht.h>
#include <string>

namespace skyvane {

class Map2D;
struct RGDContent;

/// Draws a label of its own look, such as the weather of an airport.
class IRGDCallback {
public:
    /// Into Map2D::calcFinalRGDContentRect(content); positions are pixels of the panel's viewport. Null as clip is all
    /// of the panel.
    virtual void render(const RGDContent& content, Map2D* map, const irr::core::rect<int>* clip) = 0;
    virtual ~IRGDCallback() = default;
};

/// One label of a map, a text or what a callback draws, with its place on the chart.
struct RGDContent {
    long id = 0; ///< The element's index, or whatever the owner of the callback gave.
    IRGDCallback* callback = nullptr;
    std::string text;
    ChartPosition anchor;      ///< The middle of the symbol.
    double angleDegrees = 0.0; ///< Where around it the label begins.
    float width = 0.0f;        ///< Pixels.
    float height = 0.0f;
    float symbolWidth = 0.0f;
    float symbolHeight = 0.0f;
    bool isImportant = false;

    bool isPlaced = false; ///< It was solved.
    ChartPosition place;   ///< Where the middle of the label lies on the chart, once it was.
    ChartPosition goal;    ///< Where it goes.

    float scale = 1.0f; ///< Of a text, from the font's own size.
    irr::video::SColor background{0};
    EngineRef<irr::scene::SMeshBuffer> letters;
};

} // namespace skyvane
