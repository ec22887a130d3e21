# The layouts of the sensor setup screen.
set(layouts ${CMAKE_CURRENT_LIST_DIR})
skyvane_embed(skyvane_upper sensorSetupLandscapeLayout ${layouts}/sensorSetupLandscape.ini)
skyvane_embed(skyvane_upper sensorSetupPortraitLayout ${layouts}/sensorSetupPortrait.ini)
