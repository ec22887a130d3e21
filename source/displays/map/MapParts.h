#pragma once

#include "displays/map/MapAircraft.h"
#include "displays/map/MapBackground.h"
#include "displays/map/MapButtons.h"
#include "displays/map/MapCanvas.h"
#include "displays/map/MapContents.h"
#include "displays/map/MapControls.h"
#include "displays/map/MapImages.h"
#include "displays/map/MapLabels.h"
#include "displays/map/MapProcedures.h"
#include "displays/map/MapReadings.h"
#include "displays/map/MapSelection.h"
#include "displays/map/MapTerrain.h"
#include "displays/map/MapTiles.h"
#include "displays/map/MapTraffic.h"
#include "displays/mapmath/IdSet.h"
#include "displays/mapmath/MapGestures.h"
#include "displays/mapmath/MapSettings.h"
#include "displays/mapmath/MapView.h"
#include "displays/mapmath/RebuildTimer.h"

namespace skyvane {

class Context;
class Map2D;

/// What a map is made of, and its frame: Map2D is what the outside sees of it. Main thread only.
class MapParts : private MapTiles::ITilePainter {
public:
    MapParts(Map2D& map, MapSettings& settings, TileWriters& writers);
    ~MapParts() override;

    void render(const irr::core::rect<int>& rect);
    void markDirty() { timer.markDirty(); }
    /// After whatever changed the zoom has ended.
    void endZoom();
    bool zoomTo(double zoom);
    void onPageChange();
    /// The panel's place on the screen, as it was drawn last.
    const irr::core::rect<int>& getRect() const { return rect_; }

    Map2D& map;
    Context* context;
    MapSettings& settings;
    MapSwitches switches; ///< Effective.
    MapView view;
    MapGestures gestures;
    MapReadings readings;
    RebuildTimer timer;
    MapImages images;
    MapCanvas canvas;
    MapContents contents;
    MapTiles tiles;
    MapLabels labels;
    MapBackground background;
    MapTerrain terrain;
    MapProcedures procedures;
    MapTraffic traffic;
    MapAircraft aircraft;
    MapControls controls;
    MapSelection selection;
    MapButtons buttons;
    IdSet drawnOnce;

private:
    void beginTile(const MapBox& box, const MapBox& drawnBox, int edge) override;
    bool proceedTile(double seconds) override;

    void prepareView(const irr::core::rect<int>& rect);
    void createTiles();
    bool areTargetsUsed() const { return settings.useRTT && !targetsFailed_; }
    bool areContentsShown() const;
    void drawGround();
    void drawDirectly();
    void drawTiles();
    void beginSet();
    void rebuildWhenDue();
    bool hasAltitudeChanged();
    bool checkChange(double fromMetres, double toMetres);
    void drawLabels();
    void drawMarkedPlace();
    void updateButtons();

    Drawer2D* drawer_;
    irr::core::rect<int> rect_;
    TileShape wantedShape_;
    bool targetsFailed_ = false;
    bool isSetStarted_ = false;
    double checkedAltitude_ = 0.0;
    double setStart_ = 0.0;
    double setTrack_ = 0.0; ///< What lay at the top when the last set began.
};

} // namespace skyvane
