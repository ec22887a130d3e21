#pragma once

#include "displays/mapmath/MapBox.h"
#include "displays/mapmath/MapRenderQueue.h"

#include <array>

namespace skyvane {

class IChartElementRenderer;
class Map2D;

/// Draws the chart elements of a box through their renderers, a piece at a time: onto the panel, or into the tile that
/// is the render target. Main thread only.
class MapContents : private IMapQueueUser {
public:
    explicit MapContents(Map2D& map);

    /// A new set of tiles, or a frame that is drawn directly, begins.
    void prepareSet();
    /// Begins to draw; with `isEmpty` there is nothing to.
    void start(const MapBox& box, bool intoRTT, bool isEmpty);
    /// True when all is drawn.
    bool proceed(double seconds);
    /// Once for each start, when all is drawn.
    void finish();
    void abort() { queue_.abort(); }
    int getElementCount() const { return queue_.getElementCount(); }

    IChartElementRenderer* getRenderer(int type) const;
    const std::array<IChartElementRenderer*, 9>& getRenderers() const { return renderers_; }

private:
    bool isPotentiallyRenderable(int index, const uint8_t* staticBytes) override;
    bool findPriority(int index, int& priority) override;
    void draw(int index) override;
    void finishPriority(int priority) override;
    double now() override;

    Map2D& map_;
    std::array<IChartElementRenderer*, 9> renderers_{};
    MapRenderQueue queue_;
    bool intoRTT_ = false;
    double settled_ = 0.0; ///< When the driver had drawn everything.
};

} // namespace skyvane
