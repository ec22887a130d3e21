# The layouts of the program's windows; gui/windows/LayoutDocuments.h declares them.
set(layouts ${CMAKE_CURRENT_LIST_DIR})
skyvane_embed(skyvane_upper dataLocationLayout ${layouts}/dataLocation.ini)
skyvane_embed(skyvane_upper progressLandscapeLayout ${layouts}/progressLandscape.ini)
skyvane_embed(skyvane_upper progressPortraitLayout ${layouts}/progressPortrait.ini)
