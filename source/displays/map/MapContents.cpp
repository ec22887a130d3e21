#include "displays/map/MapContents.h"

#include "chart/elements/IChartElement.h"
#include "chart/store/IChart.h"
#include "core/Context.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/IChartElementRenderer.h"
#include "displays/map/Map2D.h"

#include <GL/gl.h>

namespace skyvane {
namespace {

constexpr uint8_t typeMask = 0x3f; // of the first static byte
/// Drivers draw later than they are asked to: so long may the clock be wrong.
constexpr double settleSeconds = 0.003;

} // namespace

MapContents::MapContents(Map2D& map) : map_(map) {
    for (int type = 0; type < IChartElement::TypeCount; ++type)
        renderers_[static_cast<size_t>(type)] =
            map.getContext()->getChartElementRenderer(static_cast<IChartElement::Type>(type));
}

IChartElementRenderer* MapContents::getRenderer(int type) const {
    return type >= 0 && type < IChartElement::TypeCount ? renderers_[static_cast<size_t>(type)] : nullptr;
}

void MapContents::prepareSet() {
    for (IChartElementRenderer* renderer : renderers_)
        if (renderer)
            renderer->OnPreRTTRender2D();
}

void MapContents::start(const MapBox& box, bool intoRTT, bool isEmpty) {
    intoRTT_ = intoRTT;
    for (IChartElementRenderer* renderer : renderers_)
        if (renderer)
            renderer->OnPreRender2D();
    queue_.start(isEmpty ? nullptr : map_.getChart(), box);
}

bool MapContents::proceed(double seconds) {
    settled_ = Secs();
    return queue_.run(*this, seconds);
}

void MapContents::finish() {
    for (IChartElementRenderer* renderer : renderers_)
        if (renderer)
            renderer->OnPostRender2D();
}

bool MapContents::isPotentiallyRenderable(int index, const uint8_t* staticBytes) {
    IChartElementRenderer* renderer = getRenderer(staticBytes[0] & typeMask);
    if (!renderer)
        return false;
    char bytes[IChartElement::StaticDataSize];
    for (unsigned i = 0; i < IChartElement::StaticDataSize; ++i)
        bytes[i] = static_cast<char>(staticBytes[i]);
    return renderer->isPotentiallyRenderable(index, &map_, bytes);
}

bool MapContents::findPriority(int index, int& priority) {
    IChartElement* element = map_.getChart()->getChartElement(index);
    IChartElementRenderer* renderer = element ? getRenderer(element->getType()) : nullptr;
    if (!renderer)
        return false;
    priority = renderer->getPriority(element);
    return true;
}

void MapContents::draw(int index) {
    IChartElement* element = map_.getChart()->getChartElement(index);
    IChartElementRenderer* renderer = element ? getRenderer(element->getType()) : nullptr;
    if (renderer)
        renderer->render2D(element, &map_, index, intoRTT_, false);
}

void MapContents::finishPriority(int priority) {
    for (IChartElementRenderer* renderer : renderers_)
        if (renderer)
            renderer->OnPostPriority2D(&map_, priority);
}

double MapContents::now() {
    const double time = Secs();
    if (!intoRTT_ || time - settled_ < settleSeconds)
        return time;
    map_.getDrawer()->flush();
    glFinish();
    settled_ = Secs();
    return settled_;
}

} // namespace skyvane
