#pragma once

/// The only engine types that the lower floor knows: vectors, rectangles and dimensions. They are plain templates
/// without a device behind them.
#include <irrlicht/dimension2d.h>
#include <irrlicht/rect.h>
#include <irrlicht/vector2d.h>
#include <irrlicht/vector3d.h>
