# The documents of a first start, compiled into the program; core/files/StandardDocuments.h declares them.
set(documents ${CMAKE_CURRENT_LIST_DIR})
skyvane_embed(skyvane_lower standardConfigINI ${documents}/config.ini)
skyvane_embed(skyvane_lower standardAircraftsINI ${documents}/aircrafts.ini)
skyvane_embed(skyvane_lower standardHotspotINI ${documents}/hotspot.ini)
skyvane_embed(skyvane_lower standardExtSensorConfigINI ${documents}/extSensorConfig.ini)
skyvane_embed(skyvane_lower standardCalibrationINI ${documents}/calibration.ini)
