#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>

namespace skyvane {

/// A quad of the whole texture for pictures that lie on the earth, drawn by Drawer2D::draw2DMeshBuffer: corners in the
/// order upper left, upper right, lower left, lower right. Its material blends by alpha, without depth or light.
EngineRef<irr::scene::SMeshBuffer> makePlainQuad();

/// Corners of a rectangle of the earth that is turned with the view.
void placeQuad(irr::scene::SMeshBuffer& quad, const irr::core::vector2d<double> (&corners)[4],
               irr::video::SColor color);

} // namespace skyvane
