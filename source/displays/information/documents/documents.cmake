# The layouts of the information panels; displays/information/DetailsDocuments.h declares them.
set(informationLayouts ${CMAKE_CURRENT_LIST_DIR})
foreach(shape Landscape Portrait)
  skyvane_embed(skyvane_upper details${shape}Layout ${informationLayouts}/details${shape}.ini)
endforeach()
