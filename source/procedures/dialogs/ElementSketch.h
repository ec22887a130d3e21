#pragma once

#include <irrlicht.h>

namespace skyvane {

class Context;
class IChartElement;

/// Draws the sketch of an element of the charts into a rectangle of the screen, through the renderer of its kind;
/// nothing for a kind that has none.
void drawElementSketch(Context& context, IChartElement* element, const irr::core::rect<int>& rect);

} // namespace skyvane
