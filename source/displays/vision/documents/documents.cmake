# The window and the schema of the options of a synthetic view; displays/vision/VisionDocuments.h declares them.
set(vision ${CMAKE_CURRENT_LIST_DIR})
skyvane_embed(skyvane_upper visionOptionsLandscapeLayout ${vision}/visionOptionsLandscape.ini)
skyvane_embed(skyvane_upper visionOptionsPortraitLayout ${vision}/visionOptionsPortrait.ini)
skyvane_embed(skyvane_upper visionSchema ${vision}/vision.txt)
