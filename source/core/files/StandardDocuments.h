#pragma once

/// The documents that a first start writes, as texts that end in a NUL. Their sources are the files of
/// core/files/documents.
extern "C" {
/// data/config.ini: settings, and the 120 panels of both layouts, landscape first. Rectangles are composed for screens
/// of 16:9 and 9:16 whose lower edge a row of buttons takes.
extern const char standardConfigINI[];
extern const char standardAircraftsINI[];       ///< data/aircrafts.ini
extern const char standardHotspotINI[];         ///< data/hotspot.ini
extern const char standardExtSensorConfigINI[]; ///< data/extSensorConfig.ini
extern const char standardCalibrationINI[];     ///< data/calibration.ini
}
