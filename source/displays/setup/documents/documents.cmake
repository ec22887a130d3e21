# The layouts of the panel manager's own windows; displays/setup/SetupDocuments.h declares them.
set(setup ${CMAKE_CURRENT_LIST_DIR})
skyvane_embed(skyvane_upper presetLayout ${setup}/preset.ini)
skyvane_embed(skyvane_upper panelSetupLandscapeLayout ${setup}/panelSetupLandscape.ini)
skyvane_embed(skyvane_upper panelSetupPortraitLayout ${setup}/panelSetupPortrait.ini)
