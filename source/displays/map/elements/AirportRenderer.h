#pragma once

#include "displays/map/IChartElementRenderer.h"
#include "displays/map/RGDContent.h"
#include "displays/mapmath/elements/SketchCache.h"

namespace skyvane {

class AirportElement;
struct RendererParts;

/// The weather of airports, as a label of the map.
class IAirportWeather : public IRGDCallback {
public:
    /// By the airport's index in the chart.
    virtual bool hasRenderableWeather(long id) = 0;
};

/// Airports: the runways to scale in near views and in sketches, a symbol by surface and use in others.
class AirportRenderer : public IChartElementRenderer {
public:
    /// The parts outlive it.
    explicit AirportRenderer(RendererParts& parts) : parts_(parts) {}

    /// Null for none; outlives its use here.
    void setWeather(IAirportWeather* weather) { weather_ = weather; }

    void renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) override;
    void render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) override;
    void render2DText(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) override;
    bool isMouseOver2D(Map2D* map, const IChartElement* element, int index,
                       const irr::core::vector2d<int>& position) override;
    int getPriority(const IChartElement*) override { return 750; }
    int getSelectPriority(const IChartElement* element) override;
    bool isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) override;
    bool isPotentiallyRenderable3D(int index, Map3D* map, const char* staticBytes) override;
    void render3D(const IChartElement* element, Map3D* map, int index) override;

private:
    struct Placed;

    Placed place(const AirportElement& airport, const Map2D& map, bool intoRTT) const;
    void drawRunways(const AirportElement& airport, Map2D& map, const Placed& placed, bool intoRTT);
    void drawRunwayNames(const AirportElement& airport, Map2D& map, const Placed& placed, bool intoRTT);
    void drawAirportSymbol(const AirportElement& airport, Map2D& map, const Placed& placed, bool intoRTT);

    RendererParts& parts_;
    IAirportWeather* weather_ = nullptr;
    SketchCache sketch_;
    ShapeMesh mesh_;
};

} // namespace skyvane
