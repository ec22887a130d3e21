#pragma once

#include "chart/elements/PointBounds.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/mapmath/elements/ElementFilter.h"
#include "displays/mapmath/elements/MapAffine.h"
#include "displays/shapes/Strokes.h"

#include <irrlicht.h>

namespace skyvane {

class Map2D;

/// What renderers do alike on the map. All pixels are those of the current viewport: the tile's, or the panel's.

/// The map's projection as plain vectors.
MapAffine affineOf(const Map2D& map, bool intoRTT);
/// What is drawn now, from 0, 0.
ShapeRect viewOf(const Map2D& map, bool intoRTT);
/// Widths of lines and the like, in pixels: thousandths of the root of the screen's pixels.
float pixelsOf(const Map2D& map, double thousandths);
MapFilter filterOf(const Map2D& map, int index);

/// Whether something within these bounds, with lines and bands of a few pixels, can be seen.
bool canSee(const MapAffine& affine, const PointBounds& bounds, const ShapeRect& view);

/// A symbol with its middle on a place, `edge` pixels wide, turned counter-clockwise.
void drawTurnedSymbol(Map2D& map, const ElementSymbol& symbol, const ShapePoint& middle, double edge,
                      const SymbolColors& colors, double turnDegrees);
/// The same upright on the glass: in tiles as the map is turned now.
void drawSymbol(Map2D& map, const ElementSymbol& symbol, const ShapePoint& middle, double edge,
                const SymbolColors& colors, bool intoRTT);
/// The usual edge of navaids and fixes in pixels: smaller where a view holds many.
double navaidEdge(const Map2D& map);
/// The ring around a selected symbol.
void drawSelectionRing(Map2D& map, const ShapePoint& middle, double edge);
constexpr uint32_t selectionColor = 0xffffe11f;
/// Draws it on the map and empties it.
void drawShapes(Map2D& map, ShapeMesh& mesh);

/// The size of labels of scale 1, as a scale of the panel's font: the map holds more text than a dial.
constexpr float labelUnit = 0.85f;

/// A label around a symbol, once in a rebuild; nothing for an empty text or a selected element, which has its own.
struct ElementLabel {
    std::string text;
    irr::video::SColor color{0xffffffff};
    irr::video::SColor background{0xff202428};
    float scale = 0.9f;
    double angleDegrees = 0.0;
    bool isImportant = false;
};
void addLabel(Map2D& map, int index, const ChartPosition& position, double symbolEdge, const ElementLabel& label);

/// Whether a place on the panel hits a symbol of that size, or comes as close as a finger can.
bool isMouseOverSymbol(const Map2D& map, const ChartPosition& position, double edge,
                       const irr::core::vector2d<int>& mouse);
/// How far from a line a finger may be, in pixels.
double fingerReach(const Map2D& map);

} // namespace skyvane
