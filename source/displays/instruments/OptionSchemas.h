#pragma once

/// The options of the instruments as schemas of an IniEditor, texts that end in a NUL. Their sources are the files of
/// displays/instruments/schemas.
extern "C" {
extern const char oneSegmentPanelOptions[];
extern const char warningLampOptions[];
extern const char turnRateIndicatorOptions[];
extern const char slipIndicatorOptions[];
}
