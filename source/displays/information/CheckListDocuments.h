#pragma once

/// The layouts of the checklist panel, as texts that end in a NUL. Their sources are the files of
/// displays/information/documents.
extern "C" {
extern const char checkListPanelLandscapeLayout[];
extern const char checkListPanelPortraitLayout[];
extern const char checkListPanelFlatLayout[]; ///< For a strip that is too low for rows above and below the list.
}
