#pragma once

/// The window of a synthetic view's options and the schema of its settings, texts that end in a NUL. Their sources are
/// the files of displays/vision/documents.
extern "C" {
extern const char visionOptionsLandscapeLayout[];
extern const char visionOptionsPortraitLayout[];
extern const char visionSchema[];
}
