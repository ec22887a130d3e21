#pragma once

#include <cstdint>

namespace skyvane {

/// Colours come from a shader that warns by itself, or from here alone.
enum class TerrainShading { Shader, None };

/// The colour of a place of the terrain overview, ARGB with alpha in the top byte. All heights in metres.
///
/// Water at sea level, otherwise from green by brown to grey between the overview's lowest and highest ground. `own` is
/// the aircraft's height: with `hazard` all ground from 183 m (600 feet) below it upwards carries the warning colour,
/// red at 30 m and less, yellow at 183 m; without it, and without a shader, ground within 183 m a dimmer one. With
/// `overlay` too, ground that warns is nearly opaque, other water half, other ground clear.
uint32_t calcTerrainColor(float own, float height, float minHeight, float maxHeight, bool hazard, bool overlay,
                          TerrainShading shading = TerrainShading::Shader);

} // namespace skyvane
