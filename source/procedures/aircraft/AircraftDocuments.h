#pragma once

/// Texts that end in a NUL. Their sources are the files of procedures/aircraft/documents.
extern "C" {
extern const char aircraftSchema[]; ///< Of an IniEditor: the keys of an aircraft's section.
extern const char checkListLandscapeLayout[];
extern const char checkListPortraitLayout[];
}
