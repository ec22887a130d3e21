#pragma once

/// The layouts of a map's windows and the schema of its settings, as texts that end in a NUL. Their sources are the
/// files of displays/map/documents.
extern "C" {
extern const char mapOptionsLandscapeLayout[];
extern const char mapOptionsPortraitLayout[];
extern const char map2DOptions[];
}
