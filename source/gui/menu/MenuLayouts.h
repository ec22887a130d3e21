#pragma once

/// The documents of the menu's windows, as texts that end in a NUL. Their sources are the files of gui/menu/documents.
extern "C" {
extern const char altimeterLandscapeLayout[];
extern const char altimeterPortraitLayout[];
extern const char flightPlanLandscapeLayout[];
extern const char flightPlanPortraitLayout[];
extern const char forwardersLandscapeLayout[];
extern const char forwardersPortraitLayout[];
extern const char generalSetupSchema[]; ///< Of an IniEditor; "%FONTS%" stands for the alternatives of the fonts.
extern const char simulatorLandscapeLayout[];
extern const char simulatorPortraitLayout[];
}
