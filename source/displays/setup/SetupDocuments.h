#pragma once

/// The layout documents of the panel manager's own windows, as texts that end in a NUL. Their sources are the files of
/// displays/setup/documents.
extern "C" {
extern const char presetLayout[];
extern const char panelSetupLandscapeLayout[];
extern const char panelSetupPortraitLayout[];
}
