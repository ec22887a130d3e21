# The layouts of the map's windows and the schema of its settings; displays/map/MapDocuments.h declares them.
set(mapDocuments ${CMAKE_CURRENT_LIST_DIR})
skyvane_embed(skyvane_upper mapOptionsLandscapeLayout ${mapDocuments}/mapOptionsLandscape.ini)
skyvane_embed(skyvane_upper mapOptionsPortraitLayout ${mapDocuments}/mapOptionsPortrait.ini)
skyvane_embed(skyvane_upper map2DOptions ${mapDocuments}/map2DOptions.txt)
