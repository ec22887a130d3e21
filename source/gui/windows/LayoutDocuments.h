#pragma once

#include "core/ini/IniFile.h"

/// The layout documents of the program's windows, as texts that end in a NUL. Their sources are the files of
/// gui/windows/documents.
extern "C" {
extern const char dataLocationLandscapeLayout[];
extern const char dataLocationPortraitLayout[];
extern const char loadSaveLandscapeLayout[];
extern const char loadSavePortraitLayout[];
extern const char listScreenLandscapeLayout[];
extern const char listScreenPortraitLayout[];
extern const char progressLandscapeLayout[];
extern const char progressPortraitLayout[];
}

namespace skyvane {

/// An embedded layout as a document.
inline IniFile readLayout(const char* text) {
    IniFile document;
    document.setFromString(text);
    return document;
}

} // namespace skyvane
