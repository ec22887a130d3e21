# The layouts of the menu's windows; gui/menu/MenuLayouts.h declares them.
set(menuLayouts ${CMAKE_CURRENT_LIST_DIR})
skyvane_embed(skyvane_upper altimeterLandscapeLayout ${menuLayouts}/altimeterLandscape.ini)
skyvane_embed(skyvane_upper altimeterPortraitLayout ${menuLayouts}/altimeterPortrait.ini)
skyvane_embed(skyvane_upper forwardersLandscapeLayout ${menuLayouts}/forwardersLandscape.ini)
skyvane_embed(skyvane_upper forwardersPortraitLayout ${menuLayouts}/forwardersPortrait.ini)
skyvane_embed(skyvane_upper generalSetupSchema ${menuLayouts}/generalSetup.txt)
