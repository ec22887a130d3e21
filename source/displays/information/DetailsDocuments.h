#pragma once

/// The layouts of the details of a chart element, as texts that end in a NUL. Their sources are the files of
/// displays/information/documents.
extern "C" {
extern const char detailsLandscapeLayout[];
extern const char detailsPortraitLayout[];
}
