#pragma once

// The embedded sources of the materials, each ended by a NUL.
extern "C" {
extern const char skyvane_shader_simple_vert[];
extern const char skyvane_shader_solid_frag[];
extern const char skyvane_shader_vertexAlpha_frag[];
extern const char skyvane_shader_textureAlpha_frag[];
extern const char skyvane_shader_alpha_frag[];
extern const char skyvane_shader_alphaRef_frag[];
extern const char skyvane_shader_vertexAndTextureColor_frag[];
extern const char skyvane_shader_terrain2D_vert[];
extern const char skyvane_shader_terrain2D_frag[];
extern const char skyvane_shader_terrain_vert[];
extern const char skyvane_shader_terrain_frag[];
extern const char skyvane_shader_aircraft_vert[];
extern const char skyvane_shader_aircraft_frag[];
}
