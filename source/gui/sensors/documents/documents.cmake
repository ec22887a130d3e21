# The layouts of the windows that sensors open, and that ask for devices.
set(layouts ${CMAKE_CURRENT_LIST_DIR})
skyvane_embed(skyvane_upper gdl90CalibrationLandscapeLayout ${layouts}/gdl90CalibrationLandscape.ini)
skyvane_embed(skyvane_upper gdl90CalibrationPortraitLayout ${layouts}/gdl90CalibrationPortrait.ini)
skyvane_embed(skyvane_upper bluetoothDeviceLayout ${layouts}/bluetoothDevice.ini)
