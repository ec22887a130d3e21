# The layouts and option schemas of the information panels; displays/information/DetailsDocuments.h,
# CheckListDocuments.h and InformationOptions.h declare them.
set(informationDocuments ${CMAKE_CURRENT_LIST_DIR})
foreach(shape Landscape Portrait)
  skyvane_embed(skyvane_upper details${shape}Layout ${informationDocuments}/details${shape}.ini)
endforeach()
foreach(shape Landscape Portrait Flat)
  skyvane_embed(skyvane_upper checkListPanel${shape}Layout ${informationDocuments}/checkListPanel${shape}.ini)
endforeach()
foreach(panel gliderPanel glideInfoPanel sideViewPanel)
  skyvane_embed(skyvane_upper ${panel}Options ${informationDocuments}/${panel}.txt)
endforeach()
