# The documents of the aircraft screens; procedures/aircraft/AircraftDocuments.h declares them.
set(aircraftDocuments ${CMAKE_CURRENT_LIST_DIR})
skyvane_embed(skyvane_upper aircraftSchema ${aircraftDocuments}/aircraft.txt)
skyvane_embed(skyvane_upper checkListLandscapeLayout ${aircraftDocuments}/checkListLandscape.ini)
skyvane_embed(skyvane_upper checkListPortraitLayout ${aircraftDocuments}/checkListPortrait.ini)
