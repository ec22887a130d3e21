#pragma once

/// The options of the information panels as schemas of an IniEditor, texts that end in a NUL. Their sources are the
/// files of displays/information/documents.
extern "C" {
extern const char gliderPanelOptions[];
extern const char glideInfoPanelOptions[];
extern const char sideViewPanelOptions[];
}
