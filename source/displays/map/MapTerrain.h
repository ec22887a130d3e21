#pragma once

#include "core/engine/EngineRef.h"
#include "displays/mapmath/MapBox.h"
#include "displays/mapmath/MapView.h"

#include <irrlicht.h>
#include <string>

namespace skyvane {

class Context;
class Drawer2D;
class PanelManager;
class IPanel;

/// The ground below a map: a picture of heights and slopes that the terrain's thread makes, coloured as it is drawn by
/// the material "Terrain2D". A picture stays on its place of the earth until a new one arrives; what it doesn't reach
/// is hatched like ground that nobody knows. Main thread only.
class MapTerrain {
public:
    /// Asks on behalf of that panel, which hands the answers back.
    MapTerrain(Context* context, IPanel* panel, irr::video::ITexture* gradient);
    ~MapTerrain();
    MapTerrain(const MapTerrain&) = delete;
    MapTerrain& operator=(const MapTerrain&) = delete;

    /// Asks for a new picture where there is none, it doesn't cover the view, or its scale has gone; once at a time.
    void requestIfNeeded(const MapView& view);
    /// The charts, and the terrain with them, are others, or a zoom has ended.
    void requestAnew() { isWanted_ = true; }
    void onResult(const ChartPosition& nw, const ChartPosition& se, irr::video::IImage* image, bool undefined,
                  float minimum, float average, float maximum);
    /// Whether a picture is there that says something.
    bool isDrawable() const { return texture_ && (!undefined_ || isGroundKnownElsewhere()); }
    /// In the panel's viewport. `opaque` where nothing lies below: else only ground that warns is seen.
    void draw(const MapView& view, double altitudeMetres, bool isOpaque);

private:
    MapBox wantedBox(const MapView& view) const;
    bool doesCoverScreen(const MapView& view) const;
    void request(const MapView& view);
    void setTexture(irr::video::IImage& image);
    void removeTexture();
    /// Without any terrain the map has no ground at all; else what nobody knows is told from what is known.
    bool isGroundKnownElsewhere() const;
    void setHeightLimits(double altitudeMetres);
    void drawPicture(const MapView& view);
    void drawUnknown(const MapView& view);

    Context* context_;
    PanelManager* panels_; ///< Beyond its own life in the context, while it lets its panels go.
    Drawer2D* drawer_;
    IPanel* panel_;
    EngineRef<irr::scene::SMeshBuffer> quad_, unknownQuad_;
    EngineRef<irr::video::IImage> image_; ///< That the terrain's thread fills.
    MapBox askedBox_;
    bool isAsked_ = false;
    bool isWanted_ = false;
    irr::video::ITexture* texture_ = nullptr; ///< The driver's.
    MapBox box_;                              ///< Of the texture.
    double metresPerPixel_ = 0.0;             ///< Of the view that it was asked for.
    double askedMetresPerPixel_ = 0.0;
    bool undefined_ = true;
    float minimum_ = 0.0f, average_ = 0.0f, maximum_ = 1.0f;
};

} // namespace skyvane
