#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "displays/IPanel.h"
#include "displays/map/RGDContent.h"
#include "displays/mapmath/MapBox.h"
#include "displays/mapmath/MapSettings.h"
#include "displays/mapmath/MapView.h"
#include "gui/font/CachedText.h"

#include <irrlicht.h>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace skyvane {

class Drawer2D;
class IChart;
class IChartElement;
class MapParts;
struct MapGesture;
/// Who has drawn into which target last: maps of different pages share them.
using TileWriters = std::map<const irr::video::ITexture*, const void*>;

/// The moving map: a flat chart around the aircraft, or around a place that the pilot has marked.
///
/// The chart's picture is drawn piecemeal into render targets around the screen (MapTiles); each frame shifts and turns
/// them, and only what moves by itself is drawn anew: labels, traffic, the aircraft, the controls. Where the driver has
/// no render targets everything is drawn directly, each frame.
///
/// The first part of the interface is for those who draw on the map, above all the renderers of chart elements. They
/// draw twice over the same code: `intoRTT` into the tile that is being made, north up, else onto the panel, as it is
/// turned now. Positions in pixels are those of the current viewport in both cases, and may be handed to Drawer2D as
/// they are. Main thread only.
class Map2D : public IPanel {
public:
    using RGDContent = skyvane::RGDContent;
    using IRGDCallback = skyvane::IRGDCallback;
    using Point = irr::core::vector2d<int>;
    using PointF = irr::core::vector2d<float>;

    /// `section` is that of the configuration document from which the settings came, for changes of the pilot's;
    /// `writers` outlive the map and are shared with all others.
    Map2D(Context* context, const MapSettings& settings, std::string section, TileWriters& writers);
    ~Map2D() override;
    Map2D(const Map2D&) = delete;
    Map2D& operator=(const Map2D&) = delete;

    // --- For renderers: where things are ---

    /// Whole pixels, limited to a million in each direction, so that anything can be computed with them. A position
    /// that isn't finite lies there too.
    Point calcScreenCoordinates(double longitude, double latitude, bool intoRTT) const;
    PointF calcScreenCoordinatesf32(double longitude, double latitude, bool intoRTT) const;
    ChartPosition calcChartPositionFromScreenCoordinates(const PointF& point, bool intoRTT) const;
    /// Whether a position lies in what is drawn, or no further from it than these margins in pixels.
    bool isInside(const ChartPosition& position, double marginX, double marginY, bool intoRTT) const;
    /// The rectangle of the earth that is being drawn: the tile with its margin, or all that the panel can show.
    const MapBox& getDrawnBox(bool intoRTT) const;
    /// Of the tile or the panel, in pixels.
    irr::core::dimension2d<int> getDrawnSize(bool intoRTT) const;
    double getMetresPerPixel() const;
    /// In square degrees, as if the panel filled the screen: the measure of all thresholds.
    double getViewArea() const;

    // --- For renderers: drawing ---

    /// A symbol with the middle on its position, and its label. `index` is the element's; `size` in pixels, null for
    /// the pilot's size of elements; `scale` is that of symbol and label. The label is placed by addRGDText, once in a
    /// rebuild, and not at all when it is empty.
    void drawSingleMapElement(int index, irr::video::ITexture* texture, const ChartPosition& position,
                              const std::string& label, irr::video::SColor color, bool intoRTT,
                              const irr::core::dimension2d<int>* size = nullptr, float scale = 1.0f,
                              bool isImportant = false);
    /// A line between two places in pixels, `width` pixels wide, with a texture across it; null for plain colour.
    /// Nothing where no part of it can be seen.
    void drawLine(const irr::core::line2d<float>& line, irr::video::ITexture* texture, irr::video::SColor color,
                  float width, bool intoRTT);
    /// A text that belongs to the chart and is turned with it: its middle on a place in pixels, counter-clockwise.
    /// `scale` is that of the panel's font.
    void drawText(const std::string& text, const PointF& middle, irr::video::SColor color, float scale,
                  float rotationDegrees, bool intoRTT);

    // --- For renderers: labels that make way for each other ---

    /// Around a symbol of that size in pixels, at first in the direction of the angle: degrees, 0 to the right,
    /// counter-clockwise. `size` is the scale of the panel's font. Without a background colour it is the text's at a
    /// quarter of the brightness. Nothing while labels are switched off; above a view area of 6 important ones alone.
    void addRGDText(int index, const std::string& text, const ChartPosition& position, double angleDegrees,
                    irr::video::SColor color, float size, const irr::core::dimension2d<float>& symbolSize,
                    std::optional<irr::video::SColor> background = std::nullopt, bool isImportant = false);
    /// The same for what a callback draws, of that size in pixels. The callback outlives the map's contents.
    void addRGDCallback(IRGDCallback* callback, long id, const ChartPosition& position, double angleDegrees,
                        const irr::core::dimension2d<float>& size, const irr::core::dimension2d<float>& symbolSize,
                        bool isImportant = false);
    /// Where a label is to be drawn now, in pixels of the panel's viewport.
    irr::core::rect<int> calcFinalRGDContentRect(const RGDContent& content) const;
    /// True when the element was drawn before in this rebuild, for what is to be added once though it lies in several
    /// tiles; the first call for an index gives false and remembers it.
    bool handleOneTimeRenderLock(int index);

    // --- For renderers: what they ask of the map and the flight ---

    /// The aircraft's, as it was heard of last.
    ChartPosition getPosition() const;
    /// Metres above mean sea level, as indicated; NaN while nobody knows it.
    double getAltitude() const;
    /// The direction that lies at the top, in degrees: the heading while the map follows it, else 0.
    double getTopTrack() const;
    /// As the pilot or the preset wants them now.
    const MapSwitches& getSwitches() const;
    int getAirspacesBelowFeet() const { return settings_.airspacesBelow; }
    bool isMetric() const;
    /// Whether the current procedure leads to that element.
    bool isProcedureTarget(int index) const;
    /// The edge of a symbol in pixels, as the pilot chose it.
    float getElementSizePx() const;
    /// The shared unit of symbols, in pixels.
    float getSymbolUnit() const;
    /// The root of the screen's pixel count: what line widths are measured by.
    float getScreenUnit() const;
    /// Whether a place lies on the line between two others, all in pixels, by a finger's width or `reach` pixels.
    bool isMouseOverLine(const Point& mouse, const PointF& from, const PointF& to, float reach = 0.0f) const;
    Drawer2D* getDrawer() const;
    Context* getContext() const { return context_; }
    /// Null while there is none.
    IChart* getChart() const;
    irr::video::ITexture* getWhiteTexture() const;

    /// What the map is made of, for those who measure it.
    MapParts& getParts() { return *parts_; }

    // --- IPanel ---

    void OnPageChange() override;
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent event) override;
    std::string getName() override { return "2D-Map"; }
    void OnChartChanged() override;
    void OnProcedureChanged() override;
    void OnHideGUI() override;
    void OnTerrainImageResult(const ChartPosition& nw, const ChartPosition& se, irr::video::IImage* image,
                              bool undefined, float minimum, float average, float maximum) override;
    void applyOptimizedSettings(OptimizedSettings settings) override;
    void OnFISDataChanged(bool changed) override;

private:
    bool processMouse(const irr::SEvent::SMouseInput& mouse);
    bool processTouch(const irr::SEvent& event);
    bool processKey(const irr::SEvent::SKeyInput& key);
    bool processButton(const irr::SEvent& event);
    bool apply(const MapGesture& gesture);
    void endDrag();
    void zoomBySteps(double steps);
    void changeOptions();

    MapSettings settings_;
    std::string section_;
    OptimizedSettings preset_ = OPTIMIZED_DEFAULT;
    MapView pressedView_; ///< As it was when a finger came down.
    CachedText chartText_;
    std::unique_ptr<MapParts> parts_;
};

} // namespace skyvane
